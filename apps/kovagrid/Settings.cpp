#include "Settings.h"

#include <QtCore/QSettings>

std::unique_ptr<QSettings> userSettings()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("kovagrid"),
                                       QStringLiteral("kovagrid"));
}
