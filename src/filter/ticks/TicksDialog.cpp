#include "filter/ticks/TicksDialog.h"

#include "filter/FilterTexts.h"
#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/widgets/TextWidth.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

class TicksDialog final : public QDialog
{
public:
    enum Result { Cancelled = Rejected, Chosen = Accepted, WantsBuilder };

    TicksDialog(const TicksRequest &request, QWidget *parent)
        : QDialog(parent),
          m_request(request),
          m_ticks(new ValueTicks(this)),
          m_ok(newButton(FormTexts::Ok, u"cmdOK"_s))
    {
        makeHintsReadable(*this);
        setObjectName(u"TicksDialog"_s);
        setWindowTitle(m_request.title);
        setSizeGripEnabled(true);
        m_ticks->setObjectName(u"ValueTicks1"_s);
        layOut();
        connect(m_ok, &QPushButton::clicked, this, &TicksDialog::choose);
        if (m_request.canChoose) {
            connect(m_ticks, &ValueTicks::changed, this,
                    [this] { m_ok->setEnabled(m_request.canChoose(m_ticks->ticked())); });
        }
        m_ticks->start(m_request.fieldClass, m_request.requests, m_request.ticked);
        m_ticks->setFocus();
    }

    TickedValues ticked() const { return m_ticks->ticked(); }

private:
    QPushButton *newButton(const QString &text, const QString &name)
    {
        auto *const button = new QPushButton(text, this);
        button->setObjectName(name);
        return button;
    }

    void layOut()
    {
        auto *const buttons = new QHBoxLayout;
        if (m_request.offersBuilder) {
            QPushButton *const builder = newButton(FilterTexts::ByConditions, u"cmdByConditions"_s);
            builder->setAutoDefault(false);
            buttons->addWidget(builder);
            connect(builder, &QPushButton::clicked, this, [this] { done(WantsBuilder); });
        }
        m_ok->setDefault(true);
        QPushButton *const cancel = newButton(FormTexts::Cancel, u"cmdCancel"_s);
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        buttons->addStretch();
        buttons->addWidget(m_ok);
        buttons->addWidget(cancel);
        auto *const rows = new QVBoxLayout(this);
        rows->addWidget(m_ticks, 1);
        rows->addLayout(buttons);
        constexpr int digits = 48;
        constexpr int lines = 26;
        resize(widthOfDigits(*this, digits), lines * fontMetrics().height());
    }

    void choose()
    {
        m_ticks->stop(); // it uses the connection
        const QString fault = m_request.whyNot ? m_request.whyNot(ticked()) : QString();
        if (fault.isEmpty())
            accept();
        else
            Messages::show(this, fault);
    }

    const TicksRequest m_request;
    ValueTicks *m_ticks;
    QPushButton *m_ok;
};

} // namespace

std::optional<TicksAnswer> askTicks(QWidget *parent, const TicksRequest &request)
{
    const QPointer<TicksDialog> dialog = new TicksDialog(request, parent);
    const int result = dialog->exec();
    std::optional<TicksAnswer> answer;
    if (dialog && result == TicksDialog::Chosen)
        answer = TicksAnswer{.ticked = dialog->ticked()};
    else if (dialog && result == TicksDialog::WantsBuilder)
        answer = TicksAnswer{.wantsBuilder = true};
    delete dialog;
    return answer;
}

} // namespace KOVAVSFDataGridLib
