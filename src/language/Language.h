#pragma once

#include <QtCore/QString>

#include <functional>

class QObject;

// The language of all texts that users read. There is one for the whole application, because Qt's translators
// belong to the application: dialogs, errors of the database and threads have no control that they could ask.
// On a change, Qt sends QEvent::LanguageChange to all widgets.
namespace KOVAVSFDataGridLib::Language {

// Its name, "zh-CN" or "en". Also right when the host has installed a translator for these texts itself.
QString current();

// Switches to the language that has this name, for example "en" or "en_GB"; Chinese for an empty name. False
// if there is no translation, or no QCoreApplication; then nothing changes.
bool use(const QString &name);

// Calls `write`, which puts texts on `widget`, now and after each change of the language.
void keepTranslated(QObject &widget, std::function<void()> write);

} // namespace KOVAVSFDataGridLib::Language
