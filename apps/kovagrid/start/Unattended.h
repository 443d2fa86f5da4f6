#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <optional>

class QTableView;

// For a run without a user: message boxes are closed immediately and their texts stored; other dialogs are
// cancelled.
class Unattended : public QObject
{
    Q_OBJECT

public:
    Unattended();

    // The texts of all message boxes, in order, on one line; empty if there were none.
    QString messages() const;
    void forgetMessages() { m_messages.clear(); }

    // Writes the shown columns of a grid to standard output as tab-separated text with headings. Returns
    // false if that fails.
    static bool print(const QTableView &grid, std::optional<int> rows);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList m_messages;
};
