#include "designer/GridTaskMenu.h"

#include "designer/DataPreview.h"
#include "designer/DesignerTexts.h"
#include <KOVAVSFDataGridLib/ado/Connection.h>
#include <KOVAVSFDataGridLib/ado/ConnectionFactory.h>
#include <KOVAVSFDataGridLib/ado/Error.h>
#include <KOVAVSFDataGridLib/control/connection/BuildConnection.h>
#include <KOVAVSFDataGridLib/pages/ConnectionString.h>
#include <KOVAVSFDataGridLib/pages/PageDialog.h>
#include <KOVAVSFDataGridLib/pages/PartDisplayField.h>
#include <KOVAVSFDataGridLib/pages/PropertyPages.h>

#include <QtCore/QVariant>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtGui/QAction>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Uses the form's command history, so that the change can be undone and the property editor is updated.
void writeThroughForm(QObject &control, const QString &property, const QVariant &value)
{
    auto *widget = qobject_cast<QWidget *>(&control);
    if (auto *form = QDesignerFormWindowInterface::findFormWindow(widget))
        form->cursor()->setWidgetProperty(widget, property, value);
    else
        control.setProperty(property.toLatin1(), value);
}

// No value if the connection can't be opened: the page then offers the names in the statement itself.
std::optional<QStringList> readFieldNames(const QObject &control, const QString &statement)
{
    try {
        const auto connection = ADODB::ConnectionFactory::connectionFor(control.property("DBType").toInt());
        connection->PutConnectionString(control.property("ConnectionString").toString());
        connection->Open();
        QStringList names;
        for (const ADODB::FieldInfo &field : connection->Describe(statement))
            names.append(field.name);
        return names;
    } catch (const ADODB::Error &) {
        return {};
    }
}

} // namespace

GridTaskMenu::GridTaskMenu(QWidget &grid, QObject *parent) : QObject(parent), m_grid(grid)
{
    for (const QString &name : propertyPageNames()) {
        auto *action = new QAction(DesignerTexts::PageAction.arg(name), this);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, [this, name] { openPage(name); });
        m_actions += action;
        if (name == "SQLShow"_L1)
            m_preferred = action;
    }
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    auto *preview = new QAction(DesignerTexts::PreviewAction, this);
    preview->setObjectName(u"PreviewData"_s);
    connect(preview, &QAction::triggered, this, [this] { DataPreview(m_grid).run(); });
    m_actions += {separator, preview};
}

void GridTaskMenu::openPage(const QString &name)
{
    PropertyPage *page = newPropertyPage(name);
    PageDialog dialog(page, m_grid.window());
    page->SetWriter(writeThroughForm);
    if (auto *connection = qobject_cast<ConnectionString *>(page)) {
        connection->SetBuilder([this](QWidget *parent, const QString &present) {
            return buildConnection(parent, present, m_grid.property("DBType").toInt());
        });
    }
    if (auto *fields = qobject_cast<PartDisplayField *>(page))
        fields->SetFieldReader(readFieldNames);
    page->SetSelectedControls({&m_grid});
    dialog.exec();
}

} // namespace KOVAVSFDataGridLib
