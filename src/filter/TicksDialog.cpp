#include "filter/TicksDialog.h"

#include "ado/Error.h"
#include "filter/FilterTexts.h"
#include "filter/ValueTicks.h"
#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/widgets/TextWidth.h"
#include "query/SharedValues.h"
#include "query/conditions/Conditions.h"

#include <QtCore/QJsonDocument>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

FilterSource sourceOf(const FilterRequest &request)
{
    FilterSource source;
    source.setDatabase(request.dbType);
    if (request.tableType == FromOwnStatement && request.connection)
        source.setConnection(request.connection);
    else
        source.setConnectionString(request.connectionString);
    if (request.result)
        source.setResult(*request.result);
    else
        source.setTable(GetTableOfSQL(request.sqlShow).value_or(QString()));
    return source;
}

} // namespace

TicksDialog::TicksDialog(const FilterRequest &request, const QString &written, QWidget *parent)
    : QDialog(parent),
      m_source(sourceOf(request)),
      m_records(request.condition),
      m_ticks(new ValueTicks(this)),
      m_ok(new QPushButton(FormTexts::Ok, this))
{
    makeHintsReadable(*this);
    setObjectName(u"TicksDialog"_s);
    setWindowTitle(FilterTexts::TicksTitle.arg(request.field));
    setSizeGripEnabled(true);
    m_ticks->setObjectName(u"ValueTicks1"_s);
    layOut();
    connect(m_ticks, &ValueTicks::changed, this,
            [this] { m_ok->setEnabled(m_fault.isEmpty() && !m_ticks->ticked().isNothing()); });
    readField(request.field, written);
    m_ticks->start(
        m_field.fieldClass, [this](const QString &search) { return requestFor(search); },
        tickedValuesOf(QJsonDocument::fromJson(request.built.toUtf8()).object()));
    m_ticks->setFocus();
}

void TicksDialog::layOut()
{
    auto *builder = new QPushButton(FilterTexts::ByConditions, this);
    builder->setObjectName(u"cmdByConditions"_s);
    builder->setAutoDefault(false);
    m_ok->setObjectName(u"cmdOK"_s);
    m_ok->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::Cancel, this);
    cancel->setObjectName(u"cmdCancel"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(builder);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_ticks, 1);
    rows->addLayout(buttons);
    constexpr int digits = 48;
    constexpr int lines = 26;
    resize(widthOfDigits(*this, digits), lines * fontMetrics().height());
    connect(m_ok, &QPushButton::clicked, this, &TicksDialog::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(builder, &QPushButton::clicked, this, [this] { done(WantsBuilder); });
}

// Where fields can't be read, the list of values says why.
void TicksDialog::readField(const QString &caption, const QString &written)
{
    try {
        const std::vector<FilterField> fields = m_source.readFields();
        auto found = std::ranges::find_if(fields, [&](const FilterField &field) {
            return field.written.compare(written, Qt::CaseInsensitive) == 0;
        });
        if (found == fields.end())
            found = std::ranges::find(fields, caption, &FilterField::caption);
        if (found != fields.end())
            m_field = *found;
        else
            m_fault = FilterTexts::FieldMissing.arg(caption);
    } catch (const ADODB::Error &error) {
        m_fault = error.Description();
    }
}

ValueRequest TicksDialog::requestFor(const QString &search)
{
    if (!m_fault.isEmpty())
        throw ADODB::Error(ADODB::adErrItemNotFound, m_fault);
    return m_source.tickRequest(m_field, m_records, search);
}

void TicksDialog::choose()
{
    m_ticks->stop(); // which uses the connection
    const FilterCondition condition = conditionOf(m_source.dialect(), m_field, m_ticks->ticked());
    if (!condition.fault.isEmpty())
        return Messages::show(this, condition.fault);
    m_condition = condition.sql;
    accept();
}

QString TicksDialog::Built() const
{
    return QString::fromUtf8(QJsonDocument(toJson(m_ticks->ticked())).toJson(QJsonDocument::Compact));
}

} // namespace KOVAVSFDataGridLib
