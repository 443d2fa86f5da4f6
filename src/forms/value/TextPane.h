#pragma once

#include "forms/value/FormattedText.h"

#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Shows a text of any length with its line breaks, a piece at a time. The search covers all of it.
class TextPane final : public QWidget
{
    Q_OBJECT

public:
    explicit TextPane(const QString &text, QWidget *parent = nullptr);

    void colourAs(FormattedText::Kind kind);
    // Moves the focus to the search box.
    void beginFind();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    qsizetype pieces() const;
    qsizetype beginOfPiece(qsizetype piece) const;
    void showPiece(qsizetype piece);
    void find(bool isForward);

    const QString m_text;
    QPlainTextEdit *m_shown;
    QLineEdit *m_words;
    QLabel *m_found;
    QLabel *m_pieceLabel;
    QPushButton *m_previousPiece;
    QPushButton *m_nextPiece;
    QBoxLayout *m_foot;
    qsizetype m_piece = -1;
};

} // namespace KOVAVSFDataGridLib
