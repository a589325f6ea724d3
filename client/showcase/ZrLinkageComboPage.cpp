#include "ZrLinkageCombox.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtGui/QColor>

namespace {
struct Group
{
    const char *name; // of the colour
    int red;
    int green;
    int blue;
};

constexpr int Alpha = 150;
constexpr Group groups[] = {
    {QT_TRANSLATE_NOOP("ZrShowcase", "Orange"), 255, 127, 39},
    {QT_TRANSLATE_NOOP("ZrShowcase", "Yellow"), 255, 242, 0},
    {QT_TRANSLATE_NOOP("ZrShowcase", "Blue"), 0, 162, 232},
    {QT_TRANSLATE_NOOP("ZrShowcase", "Indigo"), 63, 72, 204},
    {QT_TRANSLATE_NOOP("ZrShowcase", "Violet"), 163, 73, 164},
};
constexpr int GroupCount = int(sizeof(groups) / sizeof(groups[0]));

/// As a plugin's title has it: the same label for each group, told apart by the colour.
ZrLinkageCombox *make(int group)
{
    auto *const combo = new ZrLinkageCombox;
    for (const Group &one : groups) {
        const int row = combo->count();
        combo->addItem(ZrShowcase::tr("Security"),
                       QStringLiteral("%1,%2,%3,%4").arg(one.red).arg(one.green).arg(one.blue).arg(Alpha));
        combo->setItemData(row, QColor(one.red, one.green, one.blue, Alpha), Qt::BackgroundRole);
    }
    const auto colour = [combo](int row) {
        if (row >= 0)
            combo->setComboBackground(combo->itemData(row).toString());
    };
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), combo, colour);
    combo->setCurrentIndex(group);
    colour(group);
    return combo;
}

ZrLinkageCombox *disabled()
{
    ZrLinkageCombox *const combo = make(0);
    combo->setEnabled(false);
    return combo;
}

ZrLinkageCombox *withLongText()
{
    ZrLinkageCombox *const combo = make(2);
    combo->setItemText(2, ZrShowcase::tr("Security and trading account of the same investor"));
    return combo;
}
} // namespace

ZrShowcasePage *zrMakeLinkageComboPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("linkage-combo"), QStringLiteral("ZrLinkageCombox"),
        ZrShowcase::tr("Chooses the group whose windows follow each other, in the colour of the group."),
        parent);
    const auto normal = []() -> QWidget * { return make(2); };
    page->beginRow(ZrShowcase::tr("Groups"));
    for (int group = 0; group < GroupCount; ++group)
        page->addSample(ZrShowcase::tr(groups[group].name), make(group));
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), normal());
    page->addPicture(ZrShowcase::tr("Hover"), normal, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), normal, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("No group"), make(-1));
    page->addSample(ZrShowcase::tr("Long text"), withLongText());
    return page;
}
