#include "window/HelpWindow.h"

#include "HostTexts.h"

#include <QtCore/QFile>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void showShortcuts(QWidget *parent)
{
    auto *window = new QDialog(parent);
    window->setObjectName(u"shortcuts"_s);
    window->setWindowTitle(HostTexts::Shortcuts());
    window->setAttribute(Qt::WA_DeleteOnClose);
    auto *text = new QTextBrowser;
    text->setAccessibleName(HostTexts::Shortcuts());
    const QString language = HostTexts::Language() == u"en" ? QString() : u".zh-CN"_s;
    text->setMarkdown(textOf(u":/kovagrid-shortcuts%1.md"_s.arg(language)) + u'\n' +
                      textOf(u":/shortcuts%1.md"_s.arg(language)));
    auto *rows = new QVBoxLayout(window);
    rows->addWidget(text);
    window->resize(620, 520);
    window->show();
}
