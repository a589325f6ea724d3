#include "DialogScene.h"
#include "ZrSkinSheet.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"

#include <QtCore/QFile>

namespace {
class View final : public IZrSkin
{
public:
    void loadSkin(const QVariant &css) override { sheets.append(css.toString()); }
    QStringList sheets;
};

QString fileOf(const char *skin, const char *name)
{
    QFile file(QStringLiteral(ZR_SKINS "/%1/").arg(QLatin1String(skin)) + Constants::SKIN_SYSTEM +
               QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

class tst_ZrSkinSheet : public QObject
{
    Q_OBJECT
private slots:
    void theSheetIsGivenAtOnceAndAtEachChangeOfSkin();
    void onlyTheSheetInUseIsGiven();
    void aMissingSheetIsToldAsTheCoreTellsIt();
};

void tst_ZrSkinSheet::theSheetIsGivenAtOnceAndAtEachChangeOfSkin()
{
    DialogScene scene("dark");
    QVERIFY(scene.isReady());
    QVERIFY(!fileOf("dark", "zrwidget/ZrToastDialog.css").isEmpty());
    View view;
    const ZrSkinSheet sheet(&view, Constants::SKIN_SYSTEM + "zrwidget/ZrToastDialog.css");
    QCOMPARE(view.sheets, QStringList{fileOf("dark", "zrwidget/ZrToastDialog.css")});
    QVERIFY(scene.host.setSkin("light"));
    QCOMPARE(view.sheets.size(), 2);
    QCOMPARE(view.sheets.last(), fileOf("light", "zrwidget/ZrToastDialog.css"));
}

void tst_ZrSkinSheet::onlyTheSheetInUseIsGiven()
{
    DialogScene scene("dark");
    View view;
    auto sheet =
        std::make_unique<ZrSkinSheet>(&view, Constants::SKIN_SYSTEM + "zrwidget/ZrToastDialogTip.css");
    sheet.reset();
    sheet = std::make_unique<ZrSkinSheet>(&view, Constants::SKIN_SYSTEM + "zrwidget/ZrToastDialog.css");
    view.sheets.clear();
    QVERIFY(scene.host.setSkin("light"));
    QCOMPARE(view.sheets, QStringList{fileOf("light", "zrwidget/ZrToastDialog.css")});
    sheet.reset();
    QVERIFY(scene.host.setSkin("dark"));
    QCOMPARE(view.sheets.size(), 1);
}

void tst_ZrSkinSheet::aMissingSheetIsToldAsTheCoreTellsIt()
{
    const DialogScene scene("dark");
    View view;
    const ZrSkinSheet sheet(&view, Constants::SKIN_SYSTEM + "zrwidget/none.css");
    QCOMPARE(sheet.path(), Constants::SKIN_SYSTEM + "zrwidget/none.css");
    QCOMPARE(view.sheets, QStringList{QString()});
}

ZR_TEST_MAIN(tst_ZrSkinSheet)
#include "tst_zrskinsheet.moc"
