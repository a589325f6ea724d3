#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>

/// The style sheet in use of a view that has several to choose from.
///
/// Shape:     one object for one sheet; it gives the sheet to the view now and at each change of skin, and
///            its end ends that. A view that registered each of its sheets itself would be given all of them
///            at a change of skin, and would end up in any of them.
/// Ownership: the view owns it, so it lives no longer than the view.
/// Threads:   GUI thread only.
/// Errors:    as ZrCore::addStyle2View.
class ZRWIDGET_PRIVATE_EXPORT ZrSkinSheet : public QObject, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    /// `path` below the skin, as for ZrCore::addStyle2View.
    ZrSkinSheet(IZrSkin *view, const QString &path);

    void loadSkin(const QVariant &css) override;
    QString path() const { return m_path; }

private:
    IZrSkin *const m_view; // not owned: it owns us
    const QString m_path;
};
