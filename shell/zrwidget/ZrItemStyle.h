#pragma once

#include "zrwidget_global.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QStyle>

class QWidget;

/// The style that draws the items of a widget, where it is known to the last pixel what it draws.
///
/// Shape:     one for a delegate; what it found for a widget is kept until that widget's style changes.
/// Ownership: normal QObject parent rules; widgets and styles are borrowed, and may go first.
/// Threads:   GUI thread only.
/// Errors:    where it can't be told, there is no such style.
class ZRWIDGET_PRIVATE_EXPORT ZrItemStyle : public QObject
{
    Q_OBJECT
public:
    explicit ZrItemStyle(QObject *parent = nullptr);

    /// The toolkit's own Fusion or Windows style when it alone draws the items of `widget`. Null when a style
    /// of the caller stands before it, or when a style sheet says something about items.
    QStyle *toolkitStyle(const QWidget *widget);

    /// Whether `sheet` may have a rule about the items of `widget`. True when in doubt.
    static bool rulesItems(const QString &sheet, const QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Void as soon as widget or application have another style than they had.
    struct Finding
    {
        const QStyle *ofWidget = nullptr;      // compared only
        const QStyle *ofApplication = nullptr; // compared only
        QPointer<QStyle> toolkit;
    };

    const Finding &find(const QWidget *widget);
    void forget(QObject *widget);

    QHash<const QObject *, Finding> m_findings;
};
