#include "filter/SetFilter.h"

#include "ado/Error.h"
#include "filter/FilterRows.h"
#include "filter/FilterTexts.h"
#include "filter/ValueEdit.h"
#include "forms/widgets/FlatCmd.h"
#include "sql/StatementLines.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString rowsKey = u"rows"_s;
const QString conditionKey = u"condition"_s;

// Shows that the user has to wait while it lives.
struct WaitCursor
{
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

} // namespace

SetFilter::SetFilter(QWidget *parent)
    : QWidget(parent),
      m_table(new QLabel(this)),
      m_scroll(new QScrollArea(this)),
      m_rows(new FilterRows(m_scroll)),
      m_add(new FlatCmd(FilterTexts::AddRow, this)),
      m_sentence(new QLabel(this)),
      m_condition(new QLineEdit(this)),
      m_backToRows(new FlatCmd(FilterTexts::BackToRows, this)),
      m_notice(new QLabel(this))
{
    m_table->setObjectName(u"lblTable"_s);
    m_table->setTextFormat(Qt::PlainText);
    m_scroll->setWidget(m_rows);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_add->setObjectName(u"cmdAddRow"_s);
    m_sentence->setObjectName(u"lblSentence"_s);
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_sentence->setFocusPolicy(Qt::NoFocus);
    // A long sentence takes no room from the rows: its tool tip has all of it.
    m_sentence->setFixedHeight(2 * fontMetrics().lineSpacing());
    m_sentence->setAlignment(Qt::AlignLeft | Qt::AlignTop);
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

    connect(m_rows, &FilterRows::changed, this, &SetFilter::onRowsChanged);
    // A new row, or what is said below one, has its place only once the area has grown.
    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, &SetFilter::showFocusedPart);
    connect(m_add, &QPushButton::clicked, this, &SetFilter::addRow);
    connect(m_condition, &QLineEdit::textEdited, this, &SetFilter::onConditionEdited);
    connect(m_backToRows, &QPushButton::clicked, this, &SetFilter::backToRows);
}

void SetFilter::layOut()
{
    auto *conditionLabel = new QLabel(FilterTexts::Condition, this);
    conditionLabel->setBuddy(m_condition);
    auto *addRow = new QHBoxLayout;
    addRow->addWidget(m_add);
    addRow->addSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    addRow->addWidget(m_sentence, 1);
    auto *conditionRow = new QHBoxLayout;
    conditionRow->addWidget(conditionLabel);
    conditionRow->addWidget(m_condition, 1);
    conditionRow->addWidget(m_backToRows);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(m_table);
    rows->addWidget(m_scroll, 1);
    rows->addLayout(addRow);
    rows->addLayout(conditionRow);
    rows->addWidget(m_notice);
    // Room for the notice from the beginning, so that nothing jumps when there is one.
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
    m_hasFields = !context->fields.empty();
    context->dialect = m_source.dialect();
    if (m_source.hasTable())
        context->records = {m_source.fromText(), m_currentCondition};
    context->offerValues = [this](const FilterField &field, ValueEdit &edit) {
        offerValues(field, edit, FilterSource::mostValues);
    };
    m_rows->start(std::move(context));
    enableParts();
    if (m_hasFields)
        m_rows->focusFirstPart();
    else
        m_condition->setFocus();
    m_stateBefore = State();
    show(fault);
}

QJsonObject SetFilter::State() const
{
    if (m_isByHand)
        return {{conditionKey, m_condition->text()}};
    return {{rowsKey, toJson(m_rows->state())}};
}

void SetFilter::PutState(const QJsonObject &state)
{
    if (const QString condition = state[conditionKey].toString(); !condition.isEmpty()) {
        m_condition->setText(condition);
        onConditionEdited();
    } else if (const auto rows = filterStateOf(state[rowsKey])) {
        if (m_isByHand)
            setByHand(false);
        const auto missing = m_rows->setState(*rows);
        if (missing)
            show(FilterTexts::FieldMissing.arg(*missing));
        else
            m_rows->focusFirstPart();
    }
    // What is typed next takes its place.
    m_condition->selectAll();
    m_stateBefore = State();
}

void SetFilter::Suggest(const QString &field, const QString &value)
{
    m_rows->suggest(field, value);
    m_condition->selectAll();
    m_stateBefore = State();
}

void SetFilter::offerValues(const FilterField &field, ValueEdit &edit, int most)
{
    constexpr int patience = 100; // milliseconds before the list says that it is being read
    constexpr int growth = 10;
    stopReading();
    disconnect(&edit, nullptr, this, nullptr);
    connect(&edit, &ValueEdit::listClosed, this, &SetFilter::stopReading);
    connect(&edit, &ValueEdit::moreWanted, this,
            [this, field, &edit, most] { offerValues(field, edit, most * growth); });
    const auto known = m_knownValues.constFind(field.written);
    if (known != m_knownValues.constEnd() && (!known->hasMore || known->values.size() >= most))
        return edit.showValues(*known);
    try {
        auto request = m_source.valueRequest(field, most);
        if (!request)
            return readValuesHere(field, edit);
        m_reading = std::make_unique<ValueReading>(std::move(*request));
    } catch (const ADODB::Error &error) {
        return show(FilterTexts::ValuesUnreadable.arg(error.Description()));
    }
    m_readingFor = &edit;
    m_shownValues.reset();
    m_readingOf = field;
    connect(m_reading.get(), &ValueReading::arrived, this, &SetFilter::onValuesArrived);
    if (m_reading->waitForValues(patience))
        onValuesArrived();
    else
        edit.showReading();
}

// Through a connection that the control uses as well.
void SetFilter::readValuesHere(const FilterField &field, ValueEdit &edit)
{
    const QPointer<SetFilter> alive(this);
    const QPointer<ValueEdit> asked(&edit);
    try {
        const WaitCursor waiting;
        const OfferedValues values{.values = m_source.readValues(field)};
        if (!alive || !asked)
            return;
        show(values.values.isEmpty() ? FilterTexts::NoValues : QString());
        m_knownValues.insert(field.written, values);
        edit.showValues(values);
    } catch (const ADODB::Error &error) {
        if (alive)
            show(FilterTexts::ValuesUnreadable.arg(error.Description()));
    }
}

void SetFilter::onValuesArrived()
{
    if (!m_reading)
        return;
    const OfferedValues values = m_reading->values();
    const QString failure = m_reading->failure();
    if (failure.isEmpty() && values.note.isEmpty())
        m_knownValues.insert(m_readingOf.written, values);
    if (!failure.isEmpty())
        show(FilterTexts::ValuesUnreadable.arg(failure));
    else if (!values.note.isEmpty() || values.values.isEmpty())
        show(values.note.isEmpty() ? FilterTexts::NoValues : values.note);
    else
        show({});
    // A list that the user moves in is not filled again with the same.
    if (m_readingFor && std::exchange(m_shownValues, values) != values)
        m_readingFor->showValues(values);
}

void SetFilter::stopReading()
{
    m_reading.reset();
}

void SetFilter::addRow()
{
    m_rows->add()->focusFirstPart();
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
    m_sentence->setText(m_rows->sentence());
    m_sentence->setToolTip(m_sentence->text());
    m_condition->setText(m_rows->preview());
    m_condition->setToolTip(m_condition->text());
    m_condition->setCursorPosition(0);
}

void SetFilter::onConditionEdited()
{
    // Typing goes on here, wherever the keyboard was when this began.
    m_condition->setFocus();
    setByHand(true);
    show(FilterTexts::ByHand);
}

void SetFilter::backToRows()
{
    setByHand(false);
    onRowsChanged();
    m_rows->focusFirstPart();
}

// What stands in the rows stays there meanwhile, and shows by its paleness that it does not count.
void SetFilter::setByHand(bool isByHand)
{
    m_isByHand = isByHand;
    if (isByHand) {
        m_sentence->clear(); // nobody knows what was typed
        m_sentence->setToolTip({});
    }
    m_backToRows->setVisible(isByHand);
    enableParts();
}

// Without fields only a condition by hand is left.
void SetFilter::enableParts()
{
    m_rows->setEnabled(m_hasFields && !m_isByHand);
    m_add->setEnabled(m_hasFields && !m_isByHand);
}

QString SetFilter::ConditionText()
{
    if (m_isByHand)
        return conditionByHand();
    const QString text = m_rows->checkedText();
    if (text.isEmpty()) {
        show(FilterTexts::CorrectRows);
        showFocusedPart();
    }
    return text;
}

QString SetFilter::conditionByHand()
{
    const QString typed = joinStatementLines(m_condition->text()).trimmed();
    if (typed.isEmpty()) {
        show(FilterTexts::NoCondition);
        return {};
    }
    // The statement's sort is found by these words, wherever they stand.
    const QString betweenBlanks = u' ' + typed + u' ';
    if (betweenBlanks.contains(" ORDER BY "_L1, Qt::CaseInsensitive)) {
        show(FilterTexts::NoOrderBy);
        return {};
    }
    // Further conditions are joined by AND, which binds closer.
    static const QRegularExpression looseWord(uR"(\bX?OR\b|\|\|)"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    const QString enclosed = u'(' + typed + u')';
    const QString text = typed.contains(looseWord) ? enclosed : typed;
    if (!m_source.hasTable())
        return text;
    stopReading();
    try {
        const WaitCursor waiting;
        // Its brackets match by themselves, and nothing stands behind it that is no condition.
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
}

} // namespace KOVAVSFDataGridLib
