#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The widget, with that object name.
template<typename Widget>
Widget *named(Widget *widget, const QString &name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace KOVAVSFDataGridLib
