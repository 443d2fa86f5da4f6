#include "control/parts/FormatDialog.h"

#include "ado/values/DisplayFormat.h"
#include "forms/Contrast.h"
#include "forms/FormTexts.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

template<typename Widget>
Widget *named(Widget *widget, const QString &name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace

FormatDialog::FormatDialog(const QString &column, bool isBoolean, const QString &format,
                           const QString &sample, QWidget *parent)
    : QDialog(parent), m_text(sample), m_sample(named(new QLabel, u"lblSample"_s))
{
    makeHintsReadable(*this);
    setObjectName(u"FormatDialog"_s);
    setWindowTitle(FormTexts::FormatTitle);
    const auto given = ADODB::DisplayFormat::fromText(format).value_or(ADODB::DisplayFormat());
    auto *rows = new QVBoxLayout(this);
    auto *heading = new QLabel(FormTexts::FormatOfColumn.arg(column));
    heading->setTextFormat(Qt::PlainText);
    rows->addWidget(heading);
    if (isBoolean) {
        m_yesNo = named(new QCheckBox(FormTexts::ShowYesNo), u"chkYesNo"_s);
        m_yesNo->setChecked(given.isYesNo);
        connect(m_yesNo, &QCheckBox::toggled, this, &FormatDialog::showSample);
        rows->addWidget(m_yesNo);
    } else {
        m_thousands = named(new QCheckBox(FormTexts::Thousands), u"chkThousands"_s);
        m_thousands->setChecked(given.hasThousands);
        m_decimals = named(new QSpinBox, u"spnDecimals"_s);
        m_decimals->setRange(-1, ADODB::DisplayFormat::mostDecimals);
        m_decimals->setSpecialValueText(FormTexts::DecimalsAsTheyAre);
        m_decimals->setValue(given.decimals);
        connect(m_thousands, &QCheckBox::toggled, this, &FormatDialog::showSample);
        connect(m_decimals, &QSpinBox::valueChanged, this, &FormatDialog::showSample);
        rows->addWidget(m_thousands);
        auto *decimals = new QFormLayout;
        decimals->addRow(FormTexts::Decimals, m_decimals);
        rows->addLayout(decimals);
    }
    m_sample->setTextFormat(Qt::PlainText);
    rows->addWidget(m_sample);
    auto *hint = new QLabel(FormTexts::FormatHint);
    hint->setWordWrap(true);
    rows->addWidget(hint);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(FormTexts::Ok, QDialogButtonBox::AcceptRole)->setObjectName(u"cmdOK"_s);
    buttons->addButton(FormTexts::Cancel, QDialogButtonBox::RejectRole)->setObjectName(u"cmdCancel"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    rows->addWidget(buttons);
    showSample();
}

QString FormatDialog::format() const
{
    if (m_yesNo)
        return ADODB::DisplayFormat{.isYesNo = m_yesNo->isChecked()}.toText();
    return ADODB::DisplayFormat{m_thousands->isChecked(), m_decimals->value()}.toText();
}

void FormatDialog::showSample()
{
    constexpr qsizetype longest = 60;
    const auto format = ADODB::DisplayFormat::fromText(this->format());
    m_sample->setText(FormTexts::FormatSample.arg(format->applied(m_text).left(longest)));
}

} // namespace KOVAVSFDataGridLib
