#include "filter/rows/TickDialog.h"

#include "filter/FilterTexts.h"
#include "forms/FormTexts.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QPushButton *newButton(const QString &text, const QString &name, QDialog *dialog)
{
    auto *const button = new QPushButton(text, dialog);
    button->setObjectName(name);
    return button;
}

} // namespace

std::optional<TickedValues> askTicks(QWidget *parent, const FilterField &field, ValueTicks::Requests requests,
                                     const TickedValues &named)
{
    const QPointer<QDialog> dialog = new QDialog(parent);
    dialog->setObjectName(u"dlgTicks"_s);
    dialog->setWindowTitle(FilterTexts::PickValues.arg(field.caption));
    dialog->setSizeGripEnabled(true);
    auto *const ticks = new ValueTicks(dialog);
    auto *const ok = newButton(FormTexts::Ok, u"cmdOk"_s, dialog);
    ok->setDefault(true);
    auto *const cancel = newButton(FormTexts::Cancel, u"cmdCancel"_s, dialog);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *const rows = new QVBoxLayout(dialog);
    rows->addWidget(ticks, 1);
    rows->addLayout(buttons);
    dialog->resize(dialog->fontMetrics().averageCharWidth() * 50, dialog->fontMetrics().height() * 24);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    ticks->start(field.fieldClass, std::move(requests), named);

    std::optional<TickedValues> answer;
    if (dialog->exec() == QDialog::Accepted && dialog)
        answer = ticks->ticked();
    delete dialog;
    return answer;
}

} // namespace KOVAVSFDataGridLib
