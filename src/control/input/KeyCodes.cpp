#include "control/input/KeyCodes.h"

#include <QtGui/QKeyEvent>

namespace KOVAVSFDataGridLib {

namespace {

struct KeyNumber
{
    int key;
    qint16 number;
};

constexpr KeyNumber numbers[] = {
    {Qt::Key_Backspace, 8},     {Qt::Key_Tab, 9},           {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},        {Qt::Key_Return, 13},       {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},        {Qt::Key_Control, 17},      {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},        {Qt::Key_CapsLock, 20},     {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},        {Qt::Key_PageUp, 33},       {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},          {Qt::Key_Home, 36},         {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},           {Qt::Key_Right, 39},        {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},        {Qt::Key_Insert, 45},       {Qt::Key_Delete, 46},
    {Qt::Key_Help, 47},         {Qt::Key_Meta, 91},         {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},     {Qt::Key_ScrollLock, 145},  {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},       {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},       {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},  {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},       {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},  {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},   {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},  {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222},
    {Qt::Key_ParenRight, '0'},  {Qt::Key_Exclam, '1'},      {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},  {Qt::Key_Dollar, '4'},      {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'}, {Qt::Key_Ampersand, '7'},   {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
};

constexpr KeyNumber keypadNumbers[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

constexpr bool isBetween(int key, int first, int last)
{
    return key >= first && key <= last;
}

} // namespace

qint16 virtualKey(const QKeyEvent &event)
{
    const int key = event.key();
    if (event.modifiers() & Qt::KeypadModifier) {
        if (isBetween(key, Qt::Key_0, Qt::Key_9))
            return static_cast<qint16>(96 + key - Qt::Key_0);
        for (const KeyNumber &entry : keypadNumbers) {
            if (entry.key == key)
                return entry.number;
        }
    }
    if (isBetween(key, Qt::Key_0, Qt::Key_9) || isBetween(key, Qt::Key_A, Qt::Key_Z))
        return static_cast<qint16>(key);
    if (isBetween(key, Qt::Key_F1, Qt::Key_F24))
        return static_cast<qint16>(112 + key - Qt::Key_F1);
    for (const KeyNumber &entry : numbers) {
        if (entry.key == key)
            return entry.number;
    }
    return 0;
}

qint16 shiftState(Qt::KeyboardModifiers modifiers)
{
    return static_cast<qint16>((modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
                               (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
                               (modifiers.testFlag(Qt::AltModifier) ? 4 : 0));
}

qint16 buttonState(Qt::MouseButtons buttons)
{
    return static_cast<qint16>((buttons.testFlag(Qt::LeftButton) ? 1 : 0) +
                               (buttons.testFlag(Qt::RightButton) ? 2 : 0) +
                               (buttons.testFlag(Qt::MiddleButton) ? 4 : 0));
}

} // namespace KOVAVSFDataGridLib
