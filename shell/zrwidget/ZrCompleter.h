#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QCompleter>

#include <memory>

class ZrCompleterPrivate;

/// The popup list under a search box: shows the rows that it is given and tells when the user turns away.
///
/// Shape:     the rows are shown as they are; nothing is narrowed here. The look is that of the popup, not of
///            the field.
/// Units:     logical px; the popup is 300 wide whatever the field is.
/// Ownership: normal QObject parent rules; popup and model are ours, the field is borrowed.
/// Threads:   GUI thread only.
/// Errors:    without a field nothing is shown.
class ZRWIDGET_PRIVATE_EXPORT ZrCompleter : public QCompleter, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    explicit ZrCompleter(QObject *parent = nullptr);
    ~ZrCompleter() override;

    /// The field that the popup serves. Listens to the ancestors that it has now.
    void setSearchWidget(QWidget *widget);
    void setSourceList(const QStringList &rows);
    /// Opens the popup where QCompleter::complete puts it for this rectangle, 300 wide. Hides it when there
    /// are no rows.
    void showPopup(const QRect &rect);

    void loadSkin(const QVariant &css) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A mouse button was pressed outside the open popup and the field; comes before the popup closes.
    void completerFocusOutEvent();

private:
    bool isOutside(const QPoint &globalPos) const;

    Q_DISABLE_COPY(ZrCompleter)
    const std::unique_ptr<ZrCompleterPrivate> m_own; // the base has a d of its own
};
