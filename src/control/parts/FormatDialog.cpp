#include "control/parts/FormatDialog.h"

#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/widgets/Named.h"
#include "forms/widgets/TickBoxes.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FormatDialog::FormatDialog(const QString &column, bool isBoolean, const QString &format,
                           const QString &sample, int decimals, QWidget *parent)
    : QDialog(parent), m_text(sample), m_leastDecimals(decimals), m_sample(named(new QLabel, u"lblSample"_s))
{
    makeHintsReadable(*this);
    setObjectName(u"FormatDialog"_s);
    setWindowTitle(FormTexts::FormatTitle);
    const auto given = ADODB::DisplayFormat::fromText(format).value_or(ADODB::DisplayFormat());
    auto *rows = new QVBoxLayout(this);
    auto *heading = new QLabel(FormTexts::FormatOfColumn.arg(column));
    heading->setTextFormat(Qt::PlainText);
    rows->addWidget(heading);
    if (isBoolean)
        addTruths(*rows, given.truth);
    else
        addNumbers(*rows, given);
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

void FormatDialog::addTruths(QVBoxLayout &rows, ADODB::DisplayFormat::Truth given)
{
    using Truth = ADODB::DisplayFormat::Truth;
    const auto add = [&](const QString &caption, const QString &name, Truth truth) {
        auto *choice = named(new RadioButton(caption), name);
        choice->setChecked(given == truth);
        connect(choice, &QRadioButton::toggled, this, &FormatDialog::showSample);
        rows.addWidget(choice);
        return choice;
    };
    add(FormTexts::ShowAsItIs, u"optAsItIs"_s, Truth::Word);
    m_yesNo = add(FormTexts::ShowYesNo, u"optYesNo"_s, Truth::YesNo);
    m_box = add(FormTexts::ShowBox, u"optBox"_s, Truth::Box);
}

void FormatDialog::addNumbers(QVBoxLayout &rows, const ADODB::DisplayFormat &given)
{
    m_thousands = named(new CheckBox(FormTexts::Thousands), u"chkThousands"_s);
    m_thousands->setChecked(given.hasThousands);
    m_decimals = named(new QSpinBox, u"spnDecimals"_s);
    m_decimals->setRange(-1, ADODB::DisplayFormat::mostDecimals);
    m_decimals->setSpecialValueText(m_leastDecimals > 0 ? FormTexts::DecimalsOfField.arg(m_leastDecimals)
                                                        : FormTexts::DecimalsAsTheyAre);
    m_decimals->setValue(given.decimals);
    connect(m_thousands, &QCheckBox::toggled, this, &FormatDialog::showSample);
    connect(m_decimals, &QSpinBox::valueChanged, this, &FormatDialog::showSample);
    rows.addWidget(m_thousands);
    auto *decimals = new QFormLayout;
    decimals->addRow(FormTexts::Decimals, m_decimals);
    rows.addLayout(decimals);
}

QString FormatDialog::format() const
{
    using Truth = ADODB::DisplayFormat::Truth;
    if (m_thousands)
        return ADODB::DisplayFormat{m_thousands->isChecked(), m_decimals->value()}.toText();
    const Truth truth = m_yesNo->isChecked() ? Truth::YesNo : m_box->isChecked() ? Truth::Box : Truth::Word;
    return ADODB::DisplayFormat{.truth = truth}.toText();
}

void FormatDialog::showSample()
{
    constexpr qsizetype longest = 60;
    auto format = ADODB::DisplayFormat::fromText(this->format()).value_or(ADODB::DisplayFormat());
    format.leastDecimals = m_leastDecimals;
    m_sample->setText(FormTexts::FormatSample.arg(format.applied(m_text).left(longest)));
}

} // namespace KOVAVSFDataGridLib
