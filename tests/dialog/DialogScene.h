#pragma once

#include "ZrReferenceHost.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>
#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

/// The reference host with the product's own skins, and a main window of 800 by 600 px.
class DialogScene
{
public:
    explicit DialogScene(const QString &skin = QStringLiteral("dark"));

    bool isReady() const { return m_ready; }

    ZrReferenceHost host;
    QWidget mainWindow;

    /// Texts that must come out as they went in, and a very long one.
    static QString markup();
    static QString withoutBlank();
    /// Contrast of two opaque colours, 1 to 21.
    static double contrast(const QColor &one, const QColor &other);

private:
    QTemporaryDir m_config;
    bool m_ready = false;
};
