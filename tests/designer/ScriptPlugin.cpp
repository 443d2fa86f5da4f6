#include "ScriptPlugin.h"

#include "DesignerScript.h"

#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace KovaTest {

namespace {

class KovaDesignerScript final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace

QString ScriptPlugin::name() const
{
    return QStringLiteral("KovaTest::KovaDesignerScript");
}

QIcon ScriptPlugin::icon() const
{
    return {};
}

QWidget *ScriptPlugin::createWidget(QWidget *parent)
{
    return new KovaDesignerScript(parent);
}

void ScriptPlugin::initialize(QDesignerFormEditorInterface *core)
{
    // As soon as the event loop runs, when the form given on the command line is open.
    QTimer::singleShot(0, qApp, [core] { DesignerScript(*core).run(); });
}

} // namespace KovaTest

#include "ScriptPlugin.moc"
