#pragma once

#include "ZrMainWindow.h"
#include "ZrReferenceHost.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <memory>

class ZrShowcasePage;

/// A host in a skin and the workstation's window, as after a fresh start, without a feed.
class ShowcaseScene
{
public:
    explicit ShowcaseScene(const QString &skin);
    ~ShowcaseScene();

    bool isReady() const { return m_ready; }
    /// Opens the page's dock.
    ZrShowcasePage *open(const QString &id);
    void setSkin(const QString &skin) { m_host.setSkin(skin); }

    /// "" when both are the same to the pixel, else where they first differ; writes both pictures there.
    static QString difference(const QImage &left, const QImage &right);

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    bool m_ready = false;
    std::unique_ptr<ZrMainWindow> m_window;
};
