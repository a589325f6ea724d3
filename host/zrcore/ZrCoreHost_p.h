#pragma once

#include "ZrCoreHost.h"
#include "ZrObjectShelf.h"
#include "ZrSettingsStore.h"
#include "ZrSkinShelf.h"
#include "ZrSkinViews.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

/// What ZrCore and ZrCoreHost share.
class ZrCoreHost::Private
{
public:
    ZrSettingsStore settings;
    ZrSkinShelf skins;
    ZrSkinViews views{&skins};
    ZrObjectShelf objects;
    QPointer<QWidget> mainWindow; // not owned
    QHash<QString, QVariant> commonInfo;
    QList<QPair<QString, int>> pluginsCreated;
};
