#include "ComboScene.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

namespace {
QtMessageHandler previous = nullptr;

// The platform without a screen warns of each popup and tool tip that it can neither raise nor give the
// keyboard.
void filter(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    if (!line.startsWith(QLatin1String("This plugin does not support ")))
        previous(type, context, line);
}

void quietenPlatform()
{
    const QtMessageHandler found = qInstallMessageHandler(filter);
    if (found != filter)
        previous = found;
}
} // namespace

ComboScene::ComboScene(int rows)
    : m_window(new QWidget)
    , m_combo(new ZrMultiComboBox(m_window.get()))
{
    quietenPlatform();
    for (int row = 0; row < rows; ++row)
        m_combo->addItem(QStringLiteral("r%1").arg(row), 1000 + row);
    m_combo->setGeometry(20, 20, 200, 28);
    m_window->resize(400, 400);
    m_window->show();
    m_window->activateWindow();
    m_combo->setFocus();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        QTest::qFail("the window does not become active", __FILE__, __LINE__);
}

ComboScene::~ComboScene() = default;

ZrMultiComboList *ComboScene::list() const
{
    return qobject_cast<ZrMultiComboList *>(m_combo->view());
}

CheckBoxInMultiBox *ComboScene::box(int row) const
{
    return qobject_cast<CheckBoxInMultiBox *>(list()->itemWidget(list()->item(row)));
}

bool ComboScene::open()
{
    QTest::mouseClick(edit(), Qt::LeftButton);
    return list()->isVisible() && QTest::qWaitForWindowExposed(list()->window());
}

void ComboScene::click(int row)
{
    clickAt(row, box(row)->width() / 2);
}

void ComboScene::clickAt(int row, int x)
{
    QTest::mouseClick(box(row), Qt::LeftButton, Qt::NoModifier, QPoint(x, box(row)->height() / 2));
}

void ComboScene::endCombo()
{
    delete m_combo.data();
}

SkinnedHost::SkinnedHost(const QString &skinId)
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = skinId;
    m_ready = m_host.start(options);
}

void NotingCheckBoxes::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                   const QWidget *widget) const
{
    if (element == CE_CheckBox) {
        const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
        texts.append(button->text);
        places.append(subElementRect(SE_CheckBoxContents, button, widget));
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QString tipOver(QWidget *widget)
{
    quietenPlatform();
    const QPoint middle = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
    const QString text = QToolTip::text();
    QToolTip::hideText();
    return text;
}
