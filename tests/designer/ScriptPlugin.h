#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QtCore/QObject>

namespace KovaTest {

// A plugin without a useful widget: Qt Designer initializes it, and that starts the script.
class ScriptPlugin final : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override;
    QString group() const override { return {}; }
    QString toolTip() const override { return {}; }
    QString whatsThis() const override { return {}; }
    QString includeFile() const override { return {}; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    void initialize(QDesignerFormEditorInterface *core) override;
};

} // namespace KovaTest
