#include "forms/value/ValueDialog.h"

#include "forms/FormTexts.h"
#include "forms/value/ValuePane.h"
#include "forms/widgets/TextWidth.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

ValueDialog::ValueDialog(QWidget *parent) : QDialog(parent), m_pane(new ValuePane(this))
{
    setObjectName(u"ValueDialog"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setSizeGripEnabled(true);
    auto *closeButton = new QPushButton(FormTexts::CloseValue, m_pane);
    closeButton->setObjectName(u"cmdCloseValue"_s);
    closeButton->setAutoDefault(false);
    m_pane->addButton(closeButton);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(m_pane);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    resize(widthOfDigits(*this, 80), widthOfDigits(*this, 56));
}

void ValueDialog::show(const ShownValue &value)
{
    replace(value);
    // Bytes are wider than texts, and pictures can be.
    resize(std::clamp(sizeHint().width(), width(), std::max(width(), widthOfDigits(*this, 100))), height());
    QDialog::show();
    raise();
    activateWindow();
    m_pane->focusValue();
}

void ValueDialog::replace(const ShownValue &value)
{
    setWindowTitle(FormTexts::ValueTitle.arg(value.field));
    m_pane->put(value);
}

bool ValueDialog::saveTo(const QString &file, QString &failure) const
{
    return m_pane->saveTo(file, failure);
}

} // namespace KOVAVSFDataGridLib
