#include "forms/ConnectDialog.h"

#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/widgets/TextWidth.h"
#include "forms/widgets/TickBoxes.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

ConnectDialog::ConnectDialog(Builder builder, QWidget *parent)
    : QDialog(parent),
      m_builder(std::move(builder)),
      m_link(new RadioButton(FormTexts::BuildConnection, this)),
      m_type(new RadioButton(FormTexts::TypeConnection, this)),
      m_text(new QLineEdit(this)),
      m_askSqlShow(new CheckBox(FormTexts::AskSqlShowToo, this)),
      m_build(new QPushButton(FormTexts::LinkButton, this)),
      m_prompt(new QLabel(FormTexts::InputConnectionString, this)),
      m_hint(new QLabel(FormTexts::ConnectionStringHint, this))
{
    makeHintsReadable(*this);
    setObjectName(u"ConnectDialog"_s);
    setWindowTitle(FormTexts::ConnectTitle);
    setSizeGripEnabled(true);
    m_link->setObjectName(u"OptionLINK"_s);
    m_type->setObjectName(u"OptionSTR"_s);
    m_type->setChecked(true);
    m_text->setObjectName(u"TextCS"_s);
    m_text->setAccessibleName(FormTexts::InputConnectionString);
    m_text->setMinimumWidth(widthOfDigits(*this, 60));
    m_askSqlShow->setObjectName(u"Check_con"_s);
    m_build->setObjectName(u"cmd_link"_s);
    m_build->setAutoDefault(false);
    m_build->setToolTip(m_builder ? FormTexts::LinkButtonHint : FormTexts::NoConnectionBuilder);
    m_prompt->setObjectName(u"Label2"_s);
    m_prompt->setBuddy(m_text);
    m_hint->setObjectName(u"Label3"_s);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    layOut();

    connect(m_link, &QRadioButton::toggled, this, &ConnectDialog::enableParts);
    connect(m_build, &QPushButton::clicked, this, &ConnectDialog::build);
    enableParts();
    m_text->setFocus();
}

void ConnectDialog::layOut()
{
    auto *ok = new QPushButton(FormTexts::ConnectOk, this);
    ok->setObjectName(u"OKButton"_s);
    ok->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::ConnectCancel, this);
    cancel->setObjectName(u"CancelButton"_s);
    connect(ok, &QPushButton::clicked, this, &ConnectDialog::acceptText);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *options = new QHBoxLayout;
    options->addWidget(m_type);
    options->addWidget(m_link);
    options->addWidget(m_build);
    options->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_askSqlShow);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(options);
    rows->addWidget(m_prompt);
    rows->addWidget(m_text);
    rows->addWidget(m_hint);
    rows->addStretch();
    rows->addLayout(buttons);
}

void ConnectDialog::SetConnectionString(const QString &text)
{
    m_text->setText(text);
    m_text->setCursorPosition(0);
}

void ConnectDialog::enableParts()
{
    m_link->setEnabled(!m_takesStatement);
    m_type->setEnabled(!m_takesStatement);
    m_askSqlShow->setEnabled(!m_takesStatement);
    m_build->setEnabled(!m_takesStatement && m_link->isChecked() && m_builder);
    m_text->setReadOnly(!m_takesStatement && m_link->isChecked());
}

void ConnectDialog::build()
{
    if (const auto built = m_builder(this, m_text->text()))
        SetConnectionString(*built);
}

void ConnectDialog::acceptText()
{
    if (m_takesStatement)
        m_sqlShow = m_text->text();
    else
        m_connectionString = m_text->text();
    if (m_askSqlShow->isChecked() && !m_takesStatement)
        askSqlShow();
    else
        accept();
}

void ConnectDialog::askSqlShow()
{
    m_takesStatement = true;
    m_prompt->setText(FormTexts::InputSqlShow);
    m_hint->setText(FormTexts::SqlShowHint);
    m_text->setAccessibleName(FormTexts::InputSqlShow);
    m_text->clear();
    enableParts();
    m_text->setFocus();
}

void ConnectDialog::reject()
{
    m_connectionString.reset();
    m_sqlShow.reset();
    QDialog::reject();
}

} // namespace KOVAVSFDataGridLib
