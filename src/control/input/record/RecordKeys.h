#pragma once

#include <QtGui/QKeyEvent>

// The meaning of keys in the single-record list.
namespace KOVAVSFDataGridLib {

inline bool isText(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

inline bool isSave(const QKeyEvent &event)
{
    return event.key() == Qt::Key_S && event.modifiers() == Qt::ControlModifier;
}

inline bool isPictures(const QKeyEvent &event)
{
    return event.key() == Qt::Key_I && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

inline bool isClear(const QKeyEvent &event)
{
    return event.key() == Qt::Key_0 && event.modifiers() == Qt::ControlModifier;
}

} // namespace KOVAVSFDataGridLib
