#include "ZrShortCutKeyWidget.h"

#include "ZrKeyNames.h"
#include "ZrPlainText.h"

#include <QtCore/QDebug>
#include <QtCore/QVariant>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr QSize RowSizePx(400, 40);

/// Place of a key in a combination: the modifiers in their order, then everything else.
int rankOf(int key)
{
    switch (key) {
    case Qt::Key_Control:
        return 0;
    case Qt::Key_Alt:
        return 1;
    case Qt::Key_Shift:
        return 2;
    default:
        return 3;
    }
}

QString textOf(const QStringList &keys)
{
    QStringList names;
    for (const QString &key : keys)
        names.append(ZrKeyNames::name(key.toInt()));
    return names.join(QLatin1Char('+'));
}

} // namespace

/// What the row is made of; all parts belong to the row.
class ZrShortCutKeyWidget::Form
{
public:
    explicit Form(ZrShortCutKeyWidget *row);

    QLabel *const label_desc;
    QLineEdit *const lineEdit_key;
    QLabel *const label_notify;
};

ZrShortCutKeyWidget::Form::Form(ZrShortCutKeyWidget *row)
    : label_desc(new QLabel(row))
    , lineEdit_key(new QLineEdit(row))
    , label_notify(new QLabel(row))
{
    label_desc->setObjectName(QStringLiteral("label_desc"));
    ZrPlainText::setCaption(label_desc, QString());
    lineEdit_key->setObjectName(QStringLiteral("lineEdit_key"));
    lineEdit_key->setReadOnly(true);
    label_notify->setObjectName(QStringLiteral("label_notify"));
    label_notify->setText(ZrShortCutKeyWidget::tr("直接按键盘进行设置"));
    lineEdit_key->setAccessibleName(ZrShortCutKeyWidget::tr("Shortcut key"));
    lineEdit_key->setAccessibleDescription(label_notify->text());

    auto *const column = new QVBoxLayout(row);
    column->setObjectName(QStringLiteral("verticalLayout"));
    column->setContentsMargins(0, 0, 0, 0);
    auto *const line = new QHBoxLayout;
    line->setObjectName(QStringLiteral("horizontalLayout"));
    line->addWidget(label_desc);
    line->addWidget(lineEdit_key);
    line->addWidget(label_notify);
    column->addLayout(line);
}

ZrShortCutKeyWidget::ZrShortCutKeyWidget(QWidget *parent)
    : QWidget(parent)
    , m_form(new Form(this))
{
    setObjectName(QStringLiteral("ZrShortCutKeyWidget"));
    setWindowTitle(QStringLiteral("Form")); // never seen: the row stands in a page
    resize(RowSizePx);
    setFocusProxy(m_form->lineEdit_key);
    m_form->lineEdit_key->installEventFilter(this);
}

ZrShortCutKeyWidget::~ZrShortCutKeyWidget() = default;

void ZrShortCutKeyWidget::setShortcutKey(const QVariant &keys)
{
    const QStringList codes = keys.toStringList();
    for (const QString &code : codes)
        addKey(code.toInt());
}

void ZrShortCutKeyWidget::setShortcutKeyDesc(const QString &description)
{
    m_description = description;
    m_form->label_desc->clear();
    ZrPlainText::setCaption(m_form->label_desc, description);
    // Not a buddy of the label: that would make shortcuts of the ampersands in a text from outside.
    m_form->lineEdit_key->setAccessibleName(description);
}

QString ZrShortCutKeyWidget::getShortcutKeyDesc() const
{
    return m_description;
}

void ZrShortCutKeyWidget::setShortcutKeyId(int id)
{
    m_shortcutKeyId = id;
}

int ZrShortCutKeyWidget::getShortcutKeyId() const
{
    return m_shortcutKeyId;
}

bool ZrShortCutKeyWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_form->lineEdit_key)
        return QWidget::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    // Claims the key for the field: otherwise a combination that the window already has a shortcut for would
    // set that off and never arrive as a key press.
    if (type == QEvent::ShortcutOverride)
        event->accept();
    if (type == QEvent::KeyPress)
        press(static_cast<const QKeyEvent &>(*event));
    if (type == QEvent::KeyRelease)
        release(static_cast<const QKeyEvent &>(*event));
    return type == QEvent::KeyPress || type == QEvent::KeyRelease;
}

// A held modifier counts even when its own press went elsewhere, before the field had the focus.
void ZrShortCutKeyWidget::press(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    if (held & Qt::ControlModifier)
        addKey(Qt::Key_Control);
    if (held & Qt::AltModifier)
        addKey(Qt::Key_Alt);
    if (held & Qt::ShiftModifier)
        addKey(Qt::Key_Shift);
    addKey(event.key());
}

void ZrShortCutKeyWidget::release(const QKeyEvent &event)
{
    // Some platforms repeat a held key as release and press. The key is still down.
    if (event.isAutoRepeat())
        return;
    if (!m_keys.isEmpty()) {
        qInfo() << "ZrShortCutKeyWidget KeyRelease:" << m_keys;
        emit signalKeys(m_keys);
    }
    // After the signal: who answers it by showing the keys again doesn't start a new combination with them.
    m_keys.clear();
}

void ZrShortCutKeyWidget::addKey(int key)
{
    const QString code = QString::number(key);
    if (ZrKeyNames::name(key).isEmpty() || m_keys.contains(code))
        return;
    // Behind all of its rank: modifiers find their place before what was pressed earlier.
    int place = m_keys.size();
    while (place > 0 && rankOf(m_keys.at(place - 1).toInt()) > rankOf(key))
        --place;
    m_keys.insert(place, code);
    m_form->lineEdit_key->setText(textOf(m_keys));
}
