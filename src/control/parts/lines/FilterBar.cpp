#include "control/parts/lines/FilterBar.h"

#include "control/parts/GridTexts.h"
#include "grid/WholeText.h"
#include "language/Language.h"

#include <QtGui/QAction>
#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int widestShare = 2; // of the bar's width: a half for one condition
constexpr QChar cross = u'✕';

} // namespace

FilterBar::FilterBar(QWidget *parent)
    : QWidget(parent), m_more(new QToolButton(this)), m_menu(new QMenu(m_more))
{
    setObjectName(u"FilterBar"_s);
    m_more->setObjectName(u"MoreConditions"_s);
    Language::keepTranslated(*this, [this] {
        setAccessibleName(GridTexts::FilterBarName);
        m_menu->setAccessibleName(GridTexts::FilterBarName);
    });
    m_more->setMenu(m_menu);
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setFocusPolicy(Qt::StrongFocus);
    hide();
}

void FilterBar::show(const QStringList &conditions)
{
    if (conditions == m_conditions)
        return;
    m_conditions = conditions;
    // The click that caused this may still be in progress in one of them.
    for (QToolButton *button : std::as_const(m_buttons)) {
        button->hide();
        button->setObjectName(QString());
        button->deleteLater();
    }
    m_buttons.clear();
    for (int i = 0; i < conditions.size(); ++i)
        m_buttons.append(makeButton(i));
    setVisible(!conditions.isEmpty());
    layOut();
}

QToolButton *FilterBar::makeButton(int condition)
{
    auto *button = new QToolButton(this);
    button->setObjectName(u"Condition%1"_s.arg(condition + 1));
    button->setFocusPolicy(Qt::StrongFocus);
    const QString words = GridTexts::RemoveCondition.arg(m_conditions.at(condition));
    button->setToolTip(uncutTextTip(words));
    button->setAccessibleName(words);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, condition] { Q_EMIT removeWanted(condition); });
    return button;
}

int FilterBar::gap() const
{
    return std::max(fontMetrics().height() / 4, 2);
}

QSize FilterBar::sizeHint() const
{
    return {0, m_more->sizeHint().height() + gap()};
}

void FilterBar::layOut()
{
    if (m_conditions.isEmpty())
        return;
    const int height = this->height() - gap();
    const int padding = 4 * gap();
    m_more->setText(GridTexts::MoreConditions.arg(m_conditions.size()));
    const int moreWidth = m_more->sizeHint().width();
    int x = gap();
    int shown = 0;
    for (; shown < m_buttons.size(); ++shown) {
        const QString mark = u"  "_s + cross;
        const int markWidth = fontMetrics().horizontalAdvance(mark);
        const int widest = std::max(width() / widestShare - padding - markWidth, padding);
        // Without line breaks and the mnemonic marker, which are not part of the text.
        QString words = fontMetrics().elidedText(m_conditions.at(shown).simplified(), Qt::ElideRight, widest);
        const int needed = fontMetrics().horizontalAdvance(words) + markWidth + padding;
        const bool isLast = shown + 1 == m_buttons.size();
        if (x + needed + (isLast ? 0 : moreWidth + gap()) > width() && shown > 0)
            break;
        QToolButton &button = *m_buttons.at(shown);
        button.setText(words.replace(u'&', "&&"_L1) + mark);
        button.setGeometry(x, gap() / 2, needed, height);
        button.setVisible(true);
        x += needed + gap();
    }
    m_menu->clear();
    m_more->setVisible(shown < m_buttons.size());
    for (int rest = shown; rest < m_buttons.size(); ++rest) {
        m_buttons.at(rest)->hide();
        QString words = m_conditions.at(rest).simplified().left(80);
        QAction *const action = m_menu->addAction(words.replace(u'&', "&&"_L1) + u"  "_s + cross);
        connect(action, &QAction::triggered, this, [this, rest] { Q_EMIT removeWanted(rest); });
    }
    m_more->setText(GridTexts::MoreConditions.arg(m_buttons.size() - shown));
    m_more->setGeometry(x, gap() / 2, moreWidth, height);
}

void FilterBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void FilterBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layOut();
}

bool FilterBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::eventFilter(watched, event);
    auto &button = *static_cast<QToolButton *>(watched);
    showWholeText(button.accessibleName(), static_cast<QHelpEvent *>(event)->globalPos(), button, {});
    return true;
}

// The delete keys work here too; the arrow keys move between the conditions.
void FilterBar::keyPressEvent(QKeyEvent *event)
{
    const auto at =
        std::ranges::find_if(m_buttons, [](const QToolButton *button) { return button->hasFocus(); });
    const qsizetype place = at - m_buttons.begin();
    if (at != m_buttons.end() && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace ||
                                  event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        return m_buttons.at(place)->click();
    QWidget::keyPressEvent(event);
}

} // namespace KOVAVSFDataGridLib
