#include "ZrDeskToolBar.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace {
constexpr int MostTitle = 100; // letters of a plugin's title in the menu

// A title comes from a plugin's file: no shortcut is made of it.
QString asEntry(const QString &title)
{
    QString text = title.left(MostTitle).simplified();
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

ZrDeskToolBar::ZrDeskToolBar(const QStringList &skins, const QString &skin, QWidget *parent)
    : QToolBar(parent)
    , m_plugins(new QMenu(this))
{
    setObjectName(QStringLiteral("deskToolBar"));
    setWindowTitle(tr("Workstation"));
    setMovable(false);
    addSkins(skins, skin);
    addSeparator();
    addMenu(QStringLiteral("openPluginButton"), tr("Open plugin"), tr("Another plugin on the desk"),
            m_plugins);
    setPlugins({});
}

void ZrDeskToolBar::addSkins(const QStringList &skins, const QString &skin)
{
    auto *const caption = new QLabel(tr("Skin"), this);
    auto *const choice = new QComboBox(this);
    caption->setBuddy(choice);
    caption->setContentsMargins(6, 0, 4, 0);
    choice->setObjectName(QStringLiteral("skinChoice"));
    choice->setToolTip(tr("Colours and pictures of all windows"));
    choice->setAccessibleName(tr("Skin"));
    addWidget(caption);
    addWidget(choice);
    for (const QString &id : skins) {
        const QString text = id == QLatin1String("dark")    ? tr("Dark")
                             : id == QLatin1String("light") ? tr("Light")
                                                            : id;
        choice->addItem(text, id);
    }
    choice->setCurrentIndex(choice->findData(skin));
    connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, choice](int index) { emit signalSkinChosen(choice->itemData(index).toString()); });
}

QToolButton *ZrDeskToolBar::addMenu(const QString &name, const QString &text, const QString &tip, QMenu *menu)
{
    auto *const button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(tip);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    addWidget(button);
    return button;
}

void ZrDeskToolBar::setPlugins(const QList<QPair<QString, QString>> &plugins)
{
    m_plugins->clear();
    for (const auto &plugin : plugins) {
        const QString id = plugin.first;
        const QString title = plugin.second.isEmpty() ? id : plugin.second;
        connect(m_plugins->addAction(asEntry(title)), &QAction::triggered, this,
                [this, id] { emit signalPluginChosen(id); });
    }
    findChild<QToolButton *>(QStringLiteral("openPluginButton"))->setEnabled(!plugins.isEmpty());
}
