#include "ZrCompleter.h"

#include "ZrPlainText.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QPointer>
#include <QtCore/QStringListModel>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyledItemDelegate>

namespace {
// A security with its name fits, and a list doesn't change its width from key to key.
constexpr int PopupWidthPx = 300;

/// Rows in the look of the style sheet, which the completer's own delegate takes little notice of, and at a
/// bounded cost whatever a candidate holds.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        return ZrPlainText::beginning(value.toString(), ZrPlainText::captionBound);
    }
};

bool holds(const QWidget *widget, const QPoint &globalPos)
{
    return widget && widget->rect().contains(widget->mapFromGlobal(globalPos));
}
} // namespace

class ZrCompleterPrivate
{
public:
    QPointer<QWidget> searchWidget;
    QStringListModel *model = nullptr; // our completer's child
};

ZrCompleter::ZrCompleter(QObject *parent)
    : QCompleter(parent)
    , m_own(new ZrCompleterPrivate)
{
    popup()->installEventFilter(this);
    m_own->model = new QStringListModel(this);
    setModel(m_own->model);
    popup()->setItemDelegate(new RowDelegate(popup()));
    popup()->setAccessibleName(tr("Securities"));
    // Measuring each row is most of what opening the list would cost.
    if (auto *const list = qobject_cast<QListView *>(popup()))
        list->setUniformItemSizes(true);
}

ZrCompleter::~ZrCompleter() = default;

void ZrCompleter::setSearchWidget(QWidget *widget)
{
    for (QWidget *at = widget; at; at = at->parentWidget())
        at->installEventFilter(this);
    m_own->searchWidget = widget;
    setWidget(widget);
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/CCompleter.css"));
}

void ZrCompleter::setSourceList(const QStringList &rows)
{
    if (m_own->model)
        m_own->model->setStringList(rows);
}

void ZrCompleter::showPopup(const QRect &rect)
{
    if (!widget())
        return;
    complete(rect);
    const QRect place = popup()->geometry();
    popup()->setGeometry(place.left(), place.top(), PopupWidthPx, place.height());
}

void ZrCompleter::loadSkin(const QVariant &css)
{
    if (css.isValid())
        popup()->setStyleSheet(css.toString());
}

bool ZrCompleter::eventFilter(QObject *watched, QEvent *event)
{
    // The popup has the mouse while it's open; a press that another widget gets all the same is one on the
    // field's window.
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && popup()->isVisible() &&
        isOutside(static_cast<QMouseEvent *>(event)->globalPos())) {
        const QPointer<ZrCompleter> self(this);
        emit completerFocusOutEvent();
        // A slot may have ended the field, and us with it.
        if (!self)
            return true;
    }
    return QCompleter::eventFilter(watched, event);
}

bool ZrCompleter::isOutside(const QPoint &globalPos) const
{
    return !holds(popup(), globalPos) && !holds(m_own->searchWidget, globalPos);
}
