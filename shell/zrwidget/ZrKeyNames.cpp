#include "ZrKeyNames.h"

namespace {

using Names = QMap<int, QString>;

// Delete goes by its short name, so that it fits beside three modifiers. AltGr goes by what it stands for on
// most keyboards, with a plus of its own at the end, and Backtab brings a Shift besides the one that is held:
// both read oddly in a combination and are required so.
Names namedKeys()
{
    const struct
    {
        int key;
        const char *name;
    } rows[] = {{Qt::Key_Escape, "Esc"},        {Qt::Key_Tab, "Tab"},
                {Qt::Key_Backtab, "Shift+Tab"}, {Qt::Key_Backspace, "BackSpace"},
                {Qt::Key_Return, "Return"},     {Qt::Key_Enter, "Enter"},
                {Qt::Key_Insert, "Ins"},        {Qt::Key_Delete, "Del"},
                {Qt::Key_Pause, "Pause"},       {Qt::Key_Print, "Print"},
                {Qt::Key_SysReq, "SysReq"},     {Qt::Key_Clear, "Clear"},
                {Qt::Key_Home, "Home"},         {Qt::Key_End, "End"},
                {Qt::Key_Left, "Left"},         {Qt::Key_Up, "Up"},
                {Qt::Key_Right, "Right"},       {Qt::Key_Down, "Down"},
                {Qt::Key_PageUp, "PgUp"},       {Qt::Key_PageDown, "PgDown"},
                {Qt::Key_Shift, "Shift"},       {Qt::Key_Control, "Ctrl"},
                {Qt::Key_Meta, "Win"},          {Qt::Key_Alt, "Alt"},
                {Qt::Key_AltGr, "Ctrl+Alt+"},   {Qt::Key_CapsLock, "CapsLock"},
                {Qt::Key_NumLock, "NumLock"},   {Qt::Key_ScrollLock, "ScrollLock"},
                {Qt::Key_Space, "Space"}};
    Names names;
    for (const auto &row : rows)
        names.insert(row.key, QLatin1String(row.name));
    return names;
}

void addFunctionKeys(Names &names)
{
    for (int key = Qt::Key_F1; key <= Qt::Key_F35; ++key)
        names.insert(key, QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1));
}

// The codes of lower-case letters, 97 to 122, name no key.
void addCharacters(Names &names)
{
    for (int key = Qt::Key_Exclam; key <= Qt::Key_QuoteLeft; ++key)
        names.insert(key, QString(QChar(key)));
    for (int key = Qt::Key_BraceLeft; key <= Qt::Key_AsciiTilde; ++key)
        names.insert(key, QString(QChar(key)));
}

Names allNames()
{
    Names names = namedKeys();
    addFunctionKeys(names);
    addCharacters(names);
    return names;
}

} // namespace

const QMap<int, QString> &ZrKeyNames::table()
{
    static const Names names = allNames();
    return names;
}

QString ZrKeyNames::name(int key)
{
    return table().value(key);
}
