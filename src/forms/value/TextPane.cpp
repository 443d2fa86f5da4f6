#include "forms/value/TextPane.h"

#include "forms/FormTexts.h"
#include "forms/value/FormatHighlighter.h"
#include "forms/widgets/TextWidth.h"
#include "language/GroupedNumber.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// A length that a text edit lays out instantly, even as a single line.
constexpr qsizetype lengthOfPiece = 50000;

QPushButton *button(const QString &caption, const QString &name, QWidget *parent)
{
    auto *made = new QPushButton(caption, parent);
    made->setObjectName(name);
    made->setAutoDefault(false);
    return made;
}

} // namespace

// A text edit has one character for each end of a line, by which what is found is counted.
TextPane::TextPane(const QString &text, QWidget *parent)
    : QWidget(parent),
      m_text(QString(text).replace("\r\n"_L1, "\n"_L1)),
      m_shown(new QPlainTextEdit(this)),
      m_words(new QLineEdit(this)),
      m_found(new QLabel(this)),
      m_pieceLabel(new QLabel(this)),
      m_previousPiece(button(FormTexts::PreviousPiece, u"cmdPreviousPiece"_s, this)),
      m_nextPiece(button(FormTexts::NextPiece, u"cmdNextPiece"_s, this)),
      m_foot(new QBoxLayout(QBoxLayout::LeftToRight))
{
    m_shown->setObjectName(u"txtValue"_s);
    m_shown->setReadOnly(true);
    m_shown->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_shown->setAccessibleName(FormTexts::ValueText);
    m_words->setObjectName(u"txtFindInValue"_s);
    m_words->setPlaceholderText(FormTexts::FindInValue);
    m_words->setAccessibleName(FormTexts::FindInValue);
    m_words->setClearButtonEnabled(true);
    // Its hint is read whole, and its frame and the button have room.
    constexpr int besides = 6;
    m_words->setMinimumWidth(m_words->fontMetrics().horizontalAdvance(m_words->placeholderText()) +
                             widthOfDigits(*m_words, besides));
    m_found->setObjectName(u"lblFoundInValue"_s);
    m_pieceLabel->setObjectName(u"lblPiece"_s);
    // The match is visible while the words are being typed.
    QPalette marked = m_shown->palette();
    marked.setColor(QPalette::Inactive, QPalette::Highlight,
                    marked.color(QPalette::Active, QPalette::Highlight));
    marked.setColor(QPalette::Inactive, QPalette::HighlightedText,
                    marked.color(QPalette::Active, QPalette::HighlightedText));
    m_shown->setPalette(marked);

    auto *words = new QHBoxLayout;
    words->addWidget(m_words, 1);
    words->addWidget(m_found);
    auto *steps = new QHBoxLayout;
    steps->addStretch();
    steps->addWidget(m_pieceLabel);
    steps->addWidget(m_previousPiece);
    steps->addWidget(m_nextPiece);
    m_foot->addLayout(words, 1);
    m_foot->addLayout(steps);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_shown, 1);
    rows->addLayout(m_foot);

    connect(m_previousPiece, &QPushButton::clicked, this, [this] { showPiece(m_piece - 1); });
    connect(m_nextPiece, &QPushButton::clicked, this, [this] { showPiece(m_piece + 1); });
    for (QWidget *const part : std::initializer_list<QWidget *>{m_pieceLabel, m_previousPiece, m_nextPiece})
        part->setVisible(pieces() > 1);
    setFocusProxy(m_shown);
    showPiece(0);
}

void TextPane::colourAs(FormattedText::Kind kind)
{
    constexpr int darkestOfLight = 128;
    new FormatHighlighter(m_shown->document(), kind,
                          palette().color(QPalette::Base).lightness() < darkestOfLight);
    m_shown->setLineWrapMode(QPlainTextEdit::NoWrap);
}

void TextPane::beginFind()
{
    m_words->setFocus();
    m_words->selectAll();
}

qsizetype TextPane::pieces() const
{
    return std::max<qsizetype>(1, (m_text.size() + lengthOfPiece - 1) / lengthOfPiece);
}

// Does not split a character.
qsizetype TextPane::beginOfPiece(qsizetype piece) const
{
    const qsizetype begin = std::min(piece * lengthOfPiece, m_text.size());
    return begin < m_text.size() && m_text.at(begin).isLowSurrogate() ? begin + 1 : begin;
}

void TextPane::showPiece(qsizetype piece)
{
    if (piece == m_piece || piece < 0 || piece >= pieces())
        return;
    m_piece = piece;
    const qsizetype begin = beginOfPiece(piece);
    m_shown->setPlainText(m_text.sliced(begin, beginOfPiece(piece + 1) - begin));
    m_pieceLabel->setText(FormTexts::PieceOf.arg(grouped(piece + 1), grouped(pieces())));
    m_previousPiece->setEnabled(piece > 0);
    m_nextPiece->setEnabled(piece + 1 < pieces());
}

// Searches from the selection on through all pieces, and wraps around once.
void TextPane::find(bool isForward)
{
    const QString words = m_words->text();
    m_found->clear();
    if (words.isEmpty())
        return;
    const QTextCursor cursor = m_shown->textCursor();
    const qsizetype begin = beginOfPiece(m_piece);
    qsizetype at = -1;
    if (isForward) {
        at = m_text.indexOf(words, begin + cursor.selectionEnd(), Qt::CaseInsensitive);
        if (at < 0)
            at = m_text.indexOf(words, 0, Qt::CaseInsensitive);
    } else {
        const qsizetype before = begin + cursor.selectionStart() - words.size();
        if (before >= 0)
            at = m_text.lastIndexOf(words, before, Qt::CaseInsensitive);
        if (at < 0)
            at = m_text.lastIndexOf(words, -1, Qt::CaseInsensitive);
    }
    if (at < 0)
        return m_found->setText(FormTexts::NotInValue);
    qsizetype piece = at / lengthOfPiece;
    if (beginOfPiece(piece) > at)
        --piece;
    showPiece(piece);
    const auto inPiece = static_cast<int>(at - beginOfPiece(piece));
    QTextCursor marked(m_shown->document());
    marked.setPosition(inPiece);
    // A match that continues in the next piece is marked up to the end of this one.
    const int last = m_shown->document()->characterCount() - 1;
    marked.setPosition(std::min(inPiece + static_cast<int>(words.size()), last), QTextCursor::KeepAnchor);
    m_shown->setTextCursor(marked);
    m_shown->ensureCursorVisible();
}

void TextPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    constexpr int narrowDigits = 60;
    const bool isNarrow = width() < widthOfDigits(*this, narrowDigits);
    m_foot->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void TextPane::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && focusWidget() == m_words)
        find(!(event->modifiers() & Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

} // namespace KOVAVSFDataGridLib
