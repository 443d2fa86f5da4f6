#include "forms/Dialog_SQLST.h"

#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/widgets/TextWidth.h"
#include "forms/widgets/TickBoxes.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

Dialog_SQLST::Dialog_SQLST(QWidget *parent)
    : QDialog(parent),
      m_label(new QLabel(this)),
      m_text(new QLineEdit(this)),
      m_allowEdit(new CheckBox(FormTexts::AllowEditing, this))
{
    makeHintsReadable(*this);
    setObjectName(u"Dialog_SQLST"_s);
    setWindowTitle(FormTexts::SqlDialogTitle);
    m_label->setObjectName(u"Label_what"_s);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setBuddy(m_text);
    m_text->setObjectName(u"Text_SQL"_s);
    m_text->setReadOnly(true);
    m_text->setMinimumWidth(widthOfDigits(*this, 70));
    m_allowEdit->setObjectName(u"Check_AllowEd"_s);

    auto *hint = new QLabel(FormTexts::AllowEditingHint, this);
    hint->setObjectName(u"Label2"_s);
    hint->setForegroundRole(QPalette::PlaceholderText);

    auto *ok = new QPushButton(FormTexts::Ok, this);
    ok->setObjectName(u"OKButton"_s);
    ok->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::Cancel, this);
    cancel->setObjectName(u"CancelButton"_s);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_allowEdit);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_label);
    rows->addWidget(m_text);
    rows->addWidget(hint);
    rows->addLayout(buttons);

    connect(m_allowEdit, &QCheckBox::toggled, m_text, [this](bool on) { m_text->setReadOnly(!on); });
    connect(ok, &QPushButton::clicked, this, &Dialog_SQLST::acceptText);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void Dialog_SQLST::SetLabel(const QString &label)
{
    m_label->setText(label);
    m_text->setAccessibleName(label);
}

void Dialog_SQLST::SetText(const QString &text)
{
    m_text->setText(text);
    m_text->setCursorPosition(0);
}

void Dialog_SQLST::SetEditing(bool canAllow, bool isAllowed)
{
    m_allowEdit->setEnabled(canAllow);
    m_allowEdit->setChecked(isAllowed);
}

void Dialog_SQLST::acceptText()
{
    if (m_allowEdit->isChecked())
        m_result = m_text->text();
    accept();
}

} // namespace KOVAVSFDataGridLib
