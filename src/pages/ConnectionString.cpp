#include "pages/ConnectionString.h"

#include "forms/Dialog_SQLST.h"
#include "pages/PageTexts.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

ConnectionString::ConnectionString(QWidget *parent)
    : PropertyPage(u"ConnectionString"_s, u"txtConnectionString"_s, PageTexts::ConnectionString,
                   PageTexts::ConnectionStringHint, parent),
      m_link(new QPushButton(PageTexts::Build, this))
{
    setObjectName(u"ConnectionString"_s);
    m_link->setObjectName(u"cmd_link"_s);
    m_link->setAutoDefault(false);
    auto *whole = new QPushButton(PageTexts::ShowWhole, this);
    whole->setObjectName(u"Cmd_SSC"_s);
    whole->setAutoDefault(false);
    whole->setToolTip(PageTexts::ShowWholeHint);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_link);
    buttons->addWidget(whole);
    buttons->addStretch();
    rows().addLayout(buttons);
    rows().addStretch();
    connect(m_link, &QPushButton::clicked, this, &ConnectionString::build);
    connect(whole, &QPushButton::clicked, this, &ConnectionString::showWhole);
    SetBuilder({});
}

void ConnectionString::SetBuilder(Builder builder)
{
    m_builder = std::move(builder);
    m_link->setEnabled(static_cast<bool>(m_builder));
    m_link->setToolTip(m_builder ? PageTexts::BuildHint : PageTexts::NoBuilder);
}

void ConnectionString::build()
{
    if (const auto built = m_builder(this, text().text()))
        text().setText(*built);
}

void ConnectionString::showWhole()
{
    Dialog_SQLST dialog(this);
    dialog.SetLabel(PageTexts::WholeLabel);
    dialog.SetText(text().text());
    dialog.SetEditing(true, false);
    dialog.exec();
    if (const auto written = dialog.result())
        text().setText(*written);
}

} // namespace KOVAVSFDataGridLib
