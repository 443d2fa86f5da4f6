#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib {

// The plugin that provides the grid to Qt Designer and QUiLoader.
class GridPlugin final : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    QString domXml() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override { return m_isInitialized; }
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    bool m_isInitialized = false;
};

} // namespace KOVAVSFDataGridLib
