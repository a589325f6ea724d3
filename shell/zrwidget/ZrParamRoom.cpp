#include "ZrParamRoom.h"

#include <QtWidgets/QWidget>

void ZrParamRoom::bound(QWidget *editor, const QString &text)
{
    if (text.size() > longestCharacters)
        editor->setMinimumWidth(leastPx);
}
