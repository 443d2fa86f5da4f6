#pragma once

#include <QtCore/QString>

#include <functional>

class QObject;

// The language of all texts for users. There is one for the whole application, because Qt's translators
// belong to the application: dialogs, database errors and threads have no control to ask for a language. When
// it changes, Qt sends QEvent::LanguageChange to all widgets.
namespace KOVAVSFDataGridLib::Language {

// Its name, "zh-CN" or "en". Also correct if the host has installed a translator for these texts itself.
QString current();
// The same, or the language that will be used when nothing holds the current one any more.
QString chosen();

// Switches to the language with this name, for example "en" or "en_GB"; Chinese if the name is empty. Returns
// false and changes nothing if there is no translation or no QCoreApplication.
bool use(const QString &name);

// Holds the language while a dialog is open that writes its texts as they are needed, so that they are all in
// one language. What use() is called with meanwhile is used when the last of these is gone.
class Hold
{
public:
    Hold();
    ~Hold();
    Q_DISABLE_COPY_MOVE(Hold)
};

// Calls `write`, which sets the texts of `widget`, now and after each change of the language.
void keepTranslated(QObject &widget, std::function<void()> write);

} // namespace KOVAVSFDataGridLib::Language
