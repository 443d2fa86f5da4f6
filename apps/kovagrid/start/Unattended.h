#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <optional>

class QTableView;

// A run that nobody watches: message boxes are closed as soon as they show and their texts kept; other
// dialogs are cancelled.
class Unattended : public QObject
{
    Q_OBJECT

public:
    Unattended();

    // The texts of all message boxes, in order, on one line; empty when there were none.
    QString messages() const;
    void forgetMessages() { m_messages.clear(); }

    // Writes the shown columns of a grid to standard output as tab-separated text, headings first. False
    // when that can't be written.
    static bool print(const QTableView &grid, std::optional<int> rows);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList m_messages;
};
