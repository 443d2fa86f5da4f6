#include "designer/GridPlugin.h"

#include "designer/DesignerTexts.h"
#include "designer/GridTaskMenuFactory.h"

#include <KOVAVSFDataGrid>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QtGui/QIcon>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QString GridPlugin::name() const
{
    return u"KOVAVSFDataGrid"_s;
}

QString GridPlugin::group() const
{
    return DesignerTexts::Group;
}

QString GridPlugin::toolTip() const
{
    return DesignerTexts::ToolTip;
}

QString GridPlugin::whatsThis() const
{
    return DesignerTexts::WhatsThis;
}

QString GridPlugin::includeFile() const
{
    return u"<KOVAVSFDataGrid>"_s;
}

// The widget box ignores an icon without fixed sizes, such as a scalable one.
QIcon GridPlugin::icon() const
{
    const QIcon scalable(u":/KOVAVSFDataGridLib/designer/KOVAVSFDataGrid.svg"_s);
    QIcon icon;
    for (const int size : {16, 22, 32, 44, 64})
        icon.addPixmap(scalable.pixmap(QSize(size, size), 1.0));
    return icon;
}

// Statements and connection strings must not be translated.
QString GridPlugin::domXml() const
{
    return uR"(<ui language="c++" displayname="KOVAVSFDataGrid">
 <widget class="KOVAVSFDataGrid" name="grid">
  <property name="geometry">
   <rect>
    <x>0</x>
    <y>0</y>
    <width>640</width>
    <height>360</height>
   </rect>
  </property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>KOVAVSFDataGrid</class>
   <propertyspecifications>
    <stringpropertyspecification name="ConnectionString" notr="true" type="singleline"/>
    <stringpropertyspecification name="SQLShow" notr="true" type="multiline"/>
    <stringpropertyspecification name="SQLPartDisplay" notr="true" type="multiline"/>
    <stringpropertyspecification name="SQLFilter" notr="true" type="multiline"/>
    <stringpropertyspecification name="SQLSort" notr="true" type="singleline"/>
    <stringpropertyspecification name="RecordSource" notr="true" type="multiline"/>
    <stringpropertyspecification name="PassQurryFilter" notr="true" type="multiline"/>
    <stringpropertyspecification name="PicField" notr="true" type="singleline"/>
    <stringpropertyspecification name="SysDBCnn" notr="true" type="singleline"/>
    <stringpropertyspecification name="SysDBMode" notr="true" type="singleline"/>
    <stringpropertyspecification name="STR_SQLTEMP" notr="true" type="multiline"/>
   </propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)"_s;
}

QWidget *GridPlugin::createWidget(QWidget *parent)
{
    return new KOVAVSFDataGrid(parent);
}

void GridPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (m_isInitialized)
        return;
    m_isInitialized = true;
    QExtensionManager *manager = core->extensionManager();
    manager->registerExtensions(new GridTaskMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

} // namespace KOVAVSFDataGridLib
