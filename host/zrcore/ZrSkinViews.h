#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVector>

class IZrSkin;
class ZrSkinShelf;

/// The views that wear the skin, each with its sheets.
///
/// Shape:     a view may have several sheets: each goes to loadSkin by itself, in the order of the
///            calls that named them, now and at each change of skin.
/// Ownership: views are borrowed and die without notice: their QObject part tells. A view without
///            one gets its sheet once and is not kept, since nothing would tell of its end.
/// Threads:   GUI thread only.
class ZrSkinViews : public QObject
{
    Q_OBJECT
public:
    explicit ZrSkinViews(const ZrSkinShelf *shelf);

    void add(IZrSkin *view, const QString &cssPath);
    /// Gives every view its sheets again, in the order in which the views came.
    void reload();
    int count() const { return m_views.size(); }

private:
    void forget(QObject *object);

    struct View
    {
        IZrSkin *skin = nullptr;
        quint64 order = 0;
        QVector<QString> sheets;
    };

    const ZrSkinShelf *const m_shelf; // not owned
    QHash<QObject *, View> m_views;
    quint64 m_nextOrder = 0;
};
