#include "control/parts/lines/FindBar.h"

#include "control/parts/GridTexts.h"
#include "control/parts/lines/ElidedLabel.h"
#include "forms/widgets/TickBoxes.h"
#include "language/Language.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int digitsOfText = 20; // the minimum width of the text box
constexpr int digitsOfFound = 30;

QToolButton *button(FindBar &bar, const QString &name)
{
    auto *made = new QToolButton(&bar);
    made->setObjectName(name);
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::StrongFocus);
    return made;
}

void setHint(QWidget &widget, const QString &hint)
{
    widget.setToolTip(hint);
    widget.setAccessibleName(hint);
}

} // namespace

FindBar::FindBar(QWidget *parent)
    : QWidget(parent),
      m_text(new QLineEdit(this)),
      m_previous(button(*this, u"cmdFindPrevious"_s)),
      m_next(button(*this, u"cmdFindNext"_s)),
      m_found(new ElidedLabel(this)),
      m_column(new QComboBox(this)),
      m_wholeCell(new CheckBox(this)),
      m_matchCase(new CheckBox(this)),
      m_close(button(*this, u"cmdFindClose"_s))
{
    setObjectName(u"FindBar"_s);
    m_text->setObjectName(u"txtFindShown"_s);
    m_found->setObjectName(u"lblFound"_s);
    m_column->setObjectName(u"cmbFindColumn"_s);
    m_wholeCell->setObjectName(u"chkWholeCell"_s);
    m_matchCase->setObjectName(u"chkMatchCase"_s);
    m_previous->setArrowType(Qt::UpArrow);
    m_next->setArrowType(Qt::DownArrow);
    m_close->setText(u"✕"_s);
    setColumns({}, {});
    Language::keepTranslated(*this, [this] { writeTexts(); });
    connect(m_text, &QLineEdit::textChanged, this, &FindBar::changed);
    connect(m_column, &QComboBox::currentIndexChanged, this, &FindBar::changed);
    connect(m_wholeCell, &QCheckBox::toggled, this, &FindBar::changed);
    connect(m_matchCase, &QCheckBox::toggled, this, &FindBar::changed);
    connect(m_previous, &QToolButton::clicked, this, &FindBar::previousWanted);
    connect(m_next, &QToolButton::clicked, this, &FindBar::nextWanted);
    connect(m_close, &QToolButton::clicked, this, &FindBar::close);
    hide();
}

void FindBar::writeTexts()
{
    setAccessibleName(GridTexts::FindBarName);
    m_text->setPlaceholderText(GridTexts::FindTextHint);
    m_text->setAccessibleName(GridTexts::FindTextHint);
    setHint(*m_previous, GridTexts::FindPrevious);
    setHint(*m_next, GridTexts::FindNext);
    setHint(*m_column, GridTexts::FindColumnHint);
    m_column->setItemText(0, GridTexts::AllColumns);
    m_wholeCell->setText(GridTexts::WholeCell);
    m_matchCase->setText(GridTexts::MatchCase);
    setHint(*m_close, GridTexts::CloseFind);
}

void FindBar::open()
{
    if (isHidden()) {
        // Searching thousands of icon theme paths for its icon would delay the start.
        m_text->setClearButtonEnabled(true);
        show();
        Q_EMIT shownOrHidden();
    }
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindBar::close()
{
    hide();
    Q_EMIT shownOrHidden();
    Q_EMIT closed();
}

void FindBar::setColumns(const QStringList &headings, const QList<int> &columns)
{
    const QSignalBlocker silent(m_column);
    const QString chosen = m_column->currentIndex() > 0 ? m_column->currentText() : QString();
    m_column->clear();
    m_column->addItem(GridTexts::AllColumns, 0);
    for (qsizetype i = 0; i < columns.size(); ++i)
        m_column->addItem(headings.at(i), columns.at(i));
    m_column->setCurrentIndex(chosen.isEmpty() ? 0 : std::max(0, m_column->findText(chosen)));
}

void FindBar::showFound(const QString &text)
{
    m_found->setText(text);
    m_found->setAccessibleName(text);
}

QString FindBar::text() const
{
    return m_text->text();
}

int FindBar::column() const
{
    return m_column->currentData().toInt();
}

bool FindBar::isWholeCell() const
{
    return m_wholeCell->isChecked();
}

bool FindBar::isCaseExact() const
{
    return m_matchCase->isChecked();
}

int FindBar::gap() const
{
    return std::max(fontMetrics().height() / 4, 2);
}

int FindBar::lineHeight() const
{
    return std::max(
        {m_text->sizeHint().height(), m_column->sizeHint().height(), m_wholeCell->sizeHint().height()});
}

int FindBar::optionsWidth() const
{
    const int widestColumn = fontMetrics().horizontalAdvance(u'0') * digitsOfText;
    return std::min(m_column->sizeHint().width(), widestColumn) + m_wholeCell->sizeHint().width() +
           m_matchCase->sizeHint().width() + 3 * gap();
}

// Whether all parts fit on one line.
bool FindBar::isWide(int width) const
{
    const int digit = fontMetrics().horizontalAdvance(u'0');
    return (digitsOfText + digitsOfFound) * digit + optionsWidth() + 3 * lineHeight() + 6 * gap() <= width;
}

int FindBar::heightForWidth(int width) const
{
    const int lines = isWide(width) ? 1 : 2;
    return lines * (lineHeight() + gap());
}

QSize FindBar::sizeHint() const
{
    return {0, heightForWidth(width())};
}

void FindBar::layOut()
{
    const int height = lineHeight();
    const int gap = this->gap();
    const int options = optionsWidth();
    const bool isWide = this->isWide(width());
    const int digit = fontMetrics().horizontalAdvance(u'0');
    int x = gap;
    int y = gap / 2;
    const auto place = [&](QWidget *part, int partWidth) {
        part->setGeometry(x, y, std::max(partWidth, 0), height);
        x += partWidth + gap;
    };
    const int room = width() - 3 * height - 6 * gap - (isWide ? options : 0);
    const int found = std::min(digitsOfFound * digit, room / 2);
    place(m_text, std::min(room - found, 2 * digitsOfText * digit));
    place(m_previous, height);
    place(m_next, height);
    if (!isWide) {
        place(m_found, width() - x - height - 2 * gap);
        x = gap;
        y += height + gap;
    }
    place(m_column, options - m_wholeCell->sizeHint().width() - m_matchCase->sizeHint().width() - 3 * gap);
    place(m_wholeCell, m_wholeCell->sizeHint().width());
    place(m_matchCase, m_matchCase->sizeHint().width());
    y = gap / 2;
    if (isWide)
        place(m_found, width() - x - height - 2 * gap);
    x = width() - height - gap;
    place(m_close, height);
}

void FindBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void FindBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layOut();
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isOnButton = m_close->hasFocus() || m_previous->hasFocus() || m_next->hasFocus();
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && isOnButton) {
        qobject_cast<QToolButton *>(focusWidget())->click();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (event->modifiers() & Qt::ShiftModifier)
            Q_EMIT previousWanted();
        else
            Q_EMIT nextWanted();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace KOVAVSFDataGridLib
