#include "ZrPushButton.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QEvent>

namespace {

constexpr int DefaultMarginPx = 5;
constexpr int DefaultRadiusPx = 6;

bool standsIn(const QObject *object, const QObject *ancestor)
{
    while (object && object != ancestor)
        object = object->parent();
    return object != nullptr;
}

} // namespace

ZrPushButton::ZrPushButton(QWidget *parent)
    : ZrPushButton(QString(), parent)
{
}

ZrPushButton::ZrPushButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
    , m_marginPx(DefaultMarginPx)
    , m_radiusPx(DefaultRadiusPx)
    , m_borderColor(QStringLiteral("#4fb7ff"))
    , m_shadowColor(0, 0, 0, 50)
    , m_isHighlighted(false)
{
    installEventFilter(this);
    setCheckable(true);
    setAttribute(Qt::WA_Hover); // some styles don't ask for it
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/zrpushbutton.css"));
}

ZrPushButton::~ZrPushButton() = default;

template<typename Value>
void ZrPushButton::change(Value &stored, const Value &value)
{
    if (stored == value)
        return;
    stored = value;
    update();
}

int ZrPushButton::margin() const
{
    return m_marginPx;
}

void ZrPushButton::setMargin(int marginPx)
{
    change(m_marginPx, marginPx);
}

int ZrPushButton::raduis() const
{
    return m_radiusPx;
}

void ZrPushButton::setRaduis(int radiusPx)
{
    change(m_radiusPx, radiusPx);
}

QColor ZrPushButton::bgColor() const
{
    return m_bgColor;
}

void ZrPushButton::setBgColor(const QColor &color)
{
    change(m_bgColor, color);
}

QColor ZrPushButton::borderColor() const
{
    return m_borderColor;
}

void ZrPushButton::setBorderColor(const QColor &color)
{
    change(m_borderColor, color);
}

void ZrPushButton::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

bool ZrPushButton::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool comes = type == QEvent::FocusIn || type == QEvent::HoverEnter;
    // The one ends what the other began: a focused button loses its look when the pointer leaves. Required.
    const bool goes = type == QEvent::FocusOut || type == QEvent::HoverLeave;
    if ((comes || goes) && standsIn(watched, this))
        setHighlighted(comes);
    return QPushButton::eventFilter(watched, event);
}

void ZrPushButton::setHighlighted(bool highlighted)
{
    setChecked(highlighted);
    m_isHighlighted = highlighted;
    update();
}

// An own override, though it adds nothing: subclasses that paint a frame call it by this class's name.
void ZrPushButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
}
