#include "filter/SetFilter.h"

#include "ado/Error.h"
#include "filter/FilterTexts.h"
#include "filter/SentenceLabel.h"
#include "filter/WaitCursor.h"
#include "filter/count/FilterCount.h"
#include "filter/kept/KeptConditions.h"
#include "filter/rows/FilterRows.h"
#include "filter/ticks/TicksDialog.h"
#include "forms/widgets/FlatCmd.h"
#include "forms/widgets/TickBoxes.h"
#include "sql/StatementLines.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAccessible>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

SetFilter::SetFilter(QWidget *parent)
    : QWidget(parent),
      m_table(new QLabel(this)),
      m_saved(new SavedFilterMenu(this)),
      m_scroll(new QScrollArea(this)),
      m_kept(new KeptConditions(m_scroll)),
      m_rows(new FilterRows(m_scroll)),
      m_add(new FlatCmd(FilterTexts::AddRow, this)),
      m_groups(new CheckBox(FilterTexts::ShowGroups, this)),
      m_addBrackets(new FlatCmd(FilterTexts::AddBrackets, this)),
      m_sentence(new SentenceLabel(this)),
      m_count(new FilterCount(this)),
      m_sql(new CheckBox(FilterTexts::ShowSql, this)),
      m_conditionLabel(new QLabel(FilterTexts::Condition, this)),
      m_condition(new QLineEdit(this)),
      m_backToRows(new FlatCmd(FilterTexts::BackToRows, this)),
      m_notice(new QLabel(this))
{
    m_table->setObjectName(u"lblTable"_s);
    m_table->setTextFormat(Qt::PlainText);
    m_saved->setObjectName(u"cmdSaved"_s);
    m_saved->setSource([this] { return completeState(); });
    m_saved->setWords([this](const BuiltFilter &filter) { return wordsFor(filter); });
    auto *parts = new QWidget(m_scroll);
    auto *lines = new QVBoxLayout(parts);
    lines->setContentsMargins({});
    lines->setSpacing(0);
    lines->addWidget(m_kept);
    lines->addWidget(m_rows, 1);
    m_scroll->setWidget(parts);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_add->setObjectName(u"cmdAddRow"_s);
    m_groups->setObjectName(u"chkGroups"_s);
    m_groups->setToolTip(FilterTexts::ShowGroupsTip);
    m_groups->setAccessibleDescription(FilterTexts::ShowGroupsTip);
    m_addBrackets->setObjectName(u"cmdAddBrackets"_s);
    m_addBrackets->setToolTip(FilterTexts::AddBracketsTip);
    m_addBrackets->setAccessibleDescription(FilterTexts::AddBracketsTip);
    m_addBrackets->hide();
    m_sentence->setObjectName(u"lblSentence"_s);
    m_count->setSource([this] { return countRequest(); });
    m_sql->setObjectName(u"chkSql"_s);
    m_sql->setToolTip(FilterTexts::ShowSqlTip);
    m_sql->setAccessibleDescription(FilterTexts::ShowSqlTip);
    m_condition->setObjectName(u"txtCondition"_s);
    m_condition->setAccessibleName(FilterTexts::ConditionName);
    m_condition->setPlaceholderText(FilterTexts::ConditionHint);
    m_backToRows->setObjectName(u"cmdBackToRows"_s);
    m_backToRows->hide();
    m_notice->setObjectName(u"lblNotice"_s);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    layOut();
    enableParts();

    connect(m_saved, &SavedFilterMenu::recalled, this, &SetFilter::recall);
    connect(m_rows, &FilterRows::changed, this, &SetFilter::onRowsChanged);
    connect(m_kept, &KeptConditions::changed, this, &SetFilter::onKeptChanged);
    // A new row, or the message below one, can be scrolled to only after the area has grown.
    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, &SetFilter::showFocusedPart);
    connect(m_add, &QPushButton::clicked, this, &SetFilter::addRow);
    connect(m_groups, &QCheckBox::toggled, this, &SetFilter::onGroupsToggled);
    connect(m_addBrackets, &QPushButton::clicked, this, [this] {
        m_rows->addBrackets();
        m_rows->focusFirstPart(); // the button disappears
    });
    connect(m_sql, &QCheckBox::toggled, this, &SetFilter::showSql);
    connect(m_sql, &QCheckBox::clicked, this, [this](bool on) {
        m_isSqlWanted = on;
        if (on)
            m_condition->setFocus();
    });
    connect(m_condition, &QLineEdit::textEdited, this, &SetFilter::onConditionEdited);
    connect(m_backToRows, &QPushButton::clicked, this, &SetFilter::backToRows);
}

void SetFilter::layOut()
{
    m_conditionLabel->setBuddy(m_condition);
    auto *tableRow = new QHBoxLayout;
    tableRow->addWidget(m_table, 1);
    tableRow->addWidget(m_saved);
    auto *addRow = new QHBoxLayout;
    addRow->addWidget(m_add);
    addRow->addWidget(m_groups);
    addRow->addWidget(m_addBrackets);
    addRow->addStretch(1);
    addRow->addWidget(m_count);
    addRow->addWidget(m_sql);
    auto *conditionRow = new QHBoxLayout;
    conditionRow->addWidget(m_conditionLabel);
    conditionRow->addWidget(m_condition, 1);
    conditionRow->addWidget(m_backToRows);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addLayout(tableRow);
    rows->addWidget(m_scroll, 1);
    rows->addLayout(addRow);
    rows->addWidget(m_sentence);
    rows->addLayout(conditionRow);
    rows->addWidget(m_notice);
    // The height of the notice is reserved, so that nothing moves when it appears.
    m_notice->setMinimumHeight(fontMetrics().lineSpacing());
    m_scroll->setMinimumWidth(m_rows->minimumSizeHint().width() + 2 * m_scroll->frameWidth() +
                              style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void SetFilter::Initialize(const QString &caption, AllDBType database)
{
    m_caption = caption;
    m_source.setDatabase(database);
}

void SetFilter::SetConnection(std::shared_ptr<ADODB::Connection> connection)
{
    m_source.setConnection(std::move(connection));
}

void SetFilter::SetConnectionString(const QString &text)
{
    m_source.setConnectionString(text);
}

void SetFilter::SetCurrentTable(const QString &name)
{
    m_table->setText(name.isEmpty() ? m_caption : FilterTexts::TableName.arg(m_caption, name));
}

void SetFilter::SetTableName(const QString &fromText)
{
    m_source.setTable(fromText);
    readFields();
}

void SetFilter::SetResult(const FilteredResult &result)
{
    m_source.setResult(result);
    readFields();
}

void SetFilter::readFields()
{
    auto context = std::make_shared<FilterRowContext>();
    QString fault;
    stopReading();
    m_knownValues.clear();
    try {
        const WaitCursor waiting;
        context->fields = m_source.readFields();
    } catch (const ADODB::Error &error) {
        fault = FilterTexts::FieldsUnreadable.arg(error.Description());
    }
    m_fields = context->fields;
    context->dialect = m_source.dialect();
    if (m_source.hasTable())
        context->records = {m_source.fromText(), m_currentCondition};
    context->offerValues = [this](const FilterField &field, ValueEdit &edit) {
        offerValues(field, edit, FilterSource::mostValues);
    };
    context->askTicks = [this](const FilterField &field, const TickedValues &named) {
        stopReading();
        const auto answer =
            askTicks(this, {.title = FilterTexts::PickValues.arg(field.caption),
                            .fieldClass = field.fieldClass,
                            .requests =
                                [this, field](const QString &search) {
                                    return m_source.tickRequest(field, m_currentCondition, search);
                                },
                            .ticked = named});
        return answer ? std::optional(answer->ticked) : std::nullopt;
    };
    context->textInForce = [this](const QString &condition) { return m_inForce.value(condition); };
    m_inForce.clear();
    m_kept->removeAll();
    m_kept->setDialect(context->dialect);
    m_rows->start(std::move(context));
    m_sql->setChecked(m_fields.empty() || m_isSqlWanted);
    enableParts();
    if (!m_fields.empty())
        m_rows->focusFirstPart();
    else
        m_condition->setFocus();
    m_stateBefore = State();
    show(fault);
}

void SetFilter::addRow()
{
    m_rows->add()->focusFirstPart();
}

// If brackets don't match, there are no groups to show.
void SetFilter::onGroupsToggled(bool on)
{
    m_rows->setGrouped(on);
    const QSignalBlocker quiet(m_groups);
    m_groups->setChecked(m_rows->isGrouped());
}

void SetFilter::showFocusedPart()
{
    if (QWidget *focused = m_rows->focusWidget())
        m_scroll->ensureWidgetVisible(focused);
}

void SetFilter::onRowsChanged()
{
    if (m_isByHand)
        return;
    show({});
    m_sentence->say(sentence());
    m_condition->setText(m_rows->preview());
    m_condition->setToolTip(m_condition->text());
    m_condition->setCursorPosition(0);
    m_count->restart();
    m_addBrackets->setVisible(!m_rows->isGrouped() && m_rows->needsBrackets());
}

void SetFilter::onConditionEdited()
{
    setByHand(true);
    // The user continues typing here, wherever the focus was.
    m_condition->setFocus();
    m_count->restart();
    show(FilterTexts::ByHand);
}

// Users who know SQL can show it; for others there is the sentence.
void SetFilter::showSql()
{
    m_conditionLabel->setVisible(m_sql->isChecked());
    m_condition->setVisible(m_sql->isChecked());
    m_kept->showSql(m_sql->isChecked());
}

// No value while a condition typed by hand is incomplete.
std::optional<CountRequest> SetFilter::countRequest()
{
    const QString condition = joinStatementLines(m_condition->text()).trimmed();
    const QString all = m_kept->joinedWith(condition.isEmpty() ? QString() : u'(' + condition + u')');
    if (all.isEmpty())
        return {};
    return m_source.countRequest(m_currentCondition, m_kept->isAnyKept() ? all : condition);
}

void SetFilter::backToRows()
{
    setByHand(false);
    onRowsChanged();
    m_rows->focusFirstPart();
}

// Meanwhile the rows keep their contents but are disabled, because they are not used.
void SetFilter::setByHand(bool isByHand)
{
    m_isByHand = isByHand;
    if (isByHand) {
        m_sentence->say({}); // the meaning of the typed text is unknown
        m_count->stop();
    }
    m_backToRows->setVisible(isByHand);
    enableParts();
}

// Without fields, only a condition typed by hand is possible.
void SetFilter::enableParts()
{
    m_rows->setEnabled(!m_fields.empty() && !m_isByHand);
    m_add->setEnabled(!m_fields.empty() && !m_isByHand);
    m_groups->setEnabled(!m_fields.empty() && !m_isByHand);
    m_addBrackets->setEnabled(!m_isByHand);
    const bool isSqlAll = m_fields.empty() || m_isByHand; // whether only the SQL is visible
    m_sql->setEnabled(!isSqlAll);
    if (isSqlAll)
        m_sql->setChecked(true);
    showSql();
}

QString SetFilter::ConditionText()
{
    const std::optional<QString> built = builtText();
    m_builtCondition = built && !m_isByHand ? m_rows->builtPreview() : built.value_or(QString());
    return built ? m_kept->joinedWith(*built) : QString();
}

// Nothing when something is wrong with it, which is then shown. What is kept needs no other condition.
std::optional<QString> SetFilter::builtText()
{
    const bool isBlank = m_isByHand ? m_condition->text().trimmed().isEmpty() : m_rows->isBlank();
    if (isBlank && m_kept->isAnyKept())
        return QString();
    QString text = m_isByHand ? conditionByHand() : m_rows->checkedText();
    if (!text.isEmpty())
        return text;
    if (!m_isByHand) {
        show(FilterTexts::CorrectRows);
        showFocusedPart();
    }
    return std::nullopt;
}

QString SetFilter::conditionByHand()
{
    const QString typed = joinStatementLines(m_condition->text()).trimmed();
    if (typed.isEmpty()) {
        show(FilterTexts::NoCondition);
        return {};
    }
    // These words are used to find the statement's sort, wherever they occur.
    const QString betweenBlanks = u' ' + typed + u' ';
    if (betweenBlanks.contains(" ORDER BY "_L1, Qt::CaseInsensitive)) {
        show(FilterTexts::NoOrderBy);
        return {};
    }
    // Further conditions are added with AND, which has precedence.
    static const QRegularExpression looseWord(uR"(\bX?OR\b|\|\|)"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    const QString enclosed = u'(' + typed + u')';
    QString text = typed.contains(looseWord) ? enclosed : typed;
    if (!m_source.hasTable())
        return text;
    stopReading();
    try {
        const WaitCursor waiting;
        // Its brackets match, and nothing follows the condition.
        m_source.check(typed);
        m_source.check(enclosed);
        return text;
    } catch (const ADODB::Error &error) {
        show(error.Description());
        return {};
    }
}

void SetFilter::show(const QString &notice)
{
    m_notice->setText(notice);
    if (notice.isEmpty())
        return;
    QAccessibleEvent alert(m_notice, QAccessible::Alert); // the focus is elsewhere
    QAccessible::updateAccessibility(&alert);
}

} // namespace KOVAVSFDataGridLib
