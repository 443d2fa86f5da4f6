#include "pages/PageDialog.h"

#include "forms/Contrast.h"
#include "pages/PageTexts.h"
#include "pages/PropertyPage.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

PageDialog::PageDialog(PropertyPage *page, QWidget *parent) : QDialog(parent), m_page(page)
{
    makeHintsReadable(*this);
    setObjectName(u"PageDialog"_s);
    setWindowTitle(PageTexts::DialogTitle.arg(page->objectName()));
    setSizeGripEnabled(true);

    auto *buttons = new QDialogButtonBox(this);
    auto *ok = buttons->addButton(PageTexts::Ok, QDialogButtonBox::AcceptRole);
    ok->setObjectName(u"OKButton"_s);
    ok->setDefault(true);
    auto *cancel = buttons->addButton(PageTexts::Cancel, QDialogButtonBox::RejectRole);
    cancel->setObjectName(u"CancelButton"_s);
    auto *apply = buttons->addButton(PageTexts::Apply, QDialogButtonBox::ApplyRole);
    apply->setObjectName(u"ApplyButton"_s);
    apply->setEnabled(page->Changed());

    page->layout()->setContentsMargins({}); // the window has its own margins
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(page, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &PageDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(apply, &QPushButton::clicked, page, &PropertyPage::ApplyChanges);
    connect(page, &PropertyPage::ChangedChanged, apply, &QPushButton::setEnabled);
    page->setFocus();
}

void PageDialog::accept()
{
    if (!m_page->Changed() || m_page->ApplyChanges())
        QDialog::accept();
}

} // namespace KOVAVSFDataGridLib
