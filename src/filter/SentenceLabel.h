#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// Two lines for a sentence. A longer one is elided, and the tool tip shows all of it.
class SentenceLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit SentenceLabel(QWidget *parent = nullptr);

    void say(const QString &sentence);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool fits(const QString &text) const;
};

} // namespace KOVAVSFDataGridLib
