#include "EditorScene.h"
#include "ZrLabel.h"
#include "ZrLabelRoom.h"
#include "ZrPlainText.h"
#include "ZrTestMain.h"

class tst_ZrLabel : public QObject
{
    Q_OBJECT
private slots:
    void aNewLabelIsPlain();
    void roleDataReadsBack();
    void settingCheckedAppliesTheSheetEachTime();
    void settingAFlagAppliesTheSheetWhenItDiffers();
    void propertiesSelectRules();
    void outsideTextIsNoMarkup();
    void aHugeNameSetsNobodysWidth();
};

void tst_ZrLabel::aNewLabelIsPlain()
{
    const ZrLabel label;
    QVERIFY(!label.isChecked());
    QCOMPARE(label.textColorFlag(), QString());
    QVERIFY(!label.getRoleData(0).isValid());
    const ZrLabel named(QStringLiteral("Price"));
    QCOMPARE(named.text(), QString("Price"));
}

void tst_ZrLabel::roleDataReadsBack()
{
    ZrLabel label;
    label.setRoleData(Qt::UserRole, "price");
    label.setRoleData(0, "Price");
    QCOMPARE(label.getRoleData(Qt::UserRole), QVariant("price"));
    QCOMPARE(label.getRoleData(0), QVariant("Price"));
    QCOMPARE(label.text(), QString());
}

void tst_ZrLabel::settingCheckedAppliesTheSheetEachTime()
{
    PolishCounter style;
    ZrLabel label;
    label.setStyle(&style);
    label.ensurePolished();
    style.count = 0;
    label.setChecked(true);
    QCOMPARE(style.count, 1);
    label.setChecked(true);
    QCOMPARE(style.count, 2);
    QVERIFY(label.isChecked());
    QVERIFY(label.property("checked").toBool());
    QVERIFY(label.setProperty("checked", false));
    QCOMPARE(style.count, 3);
    QVERIFY(!label.isChecked());
}

void tst_ZrLabel::settingAFlagAppliesTheSheetWhenItDiffers()
{
    PolishCounter style;
    ZrLabel label;
    label.setStyle(&style);
    label.ensurePolished();
    style.count = 0;
    label.setTextColorFlag(QString());
    QCOMPARE(style.count, 0);
    label.setTextColorFlag("warn");
    QCOMPARE(style.count, 1);
    label.setTextColorFlag("warn");
    QCOMPARE(style.count, 1);
    QVERIFY(label.setProperty("textColorFlag", "good"));
    QCOMPARE(style.count, 2);
    QCOMPARE(label.textColorFlag(), QString("good"));
}

void tst_ZrLabel::propertiesSelectRules()
{
    ZrLabel label;
    label.resize(40, 20);
    label.setStyleSheet("ZrLabel { background: #101010; }"
                        "ZrLabel[checked=\"true\"] { background: #202020; }"
                        "ZrLabel[textColorFlag=\"warn\"] { background: #303030; }");
    const auto middle = [&label] { return label.grab().toImage().pixelColor(20, 10); };
    QCOMPARE(middle(), QColor("#101010"));
    label.setChecked(true);
    QCOMPARE(middle(), QColor("#202020"));
    label.setTextColorFlag("warn");
    QCOMPARE(middle(), QColor("#303030"));
    label.setTextColorFlag(QString());
    label.setChecked(false);
    QCOMPARE(middle(), QColor("#101010"));
}

void tst_ZrLabel::outsideTextIsNoMarkup()
{
    const QString markup = QStringLiteral("<b>&Price</b>");
    ZrLabel label(markup);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), markup);
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setText(markup);
    QCOMPARE(label.sizeHint(), plain.sizeHint());
}

void tst_ZrLabel::aHugeNameSetsNobodysWidth()
{
    ZrLabel label(QStringLiteral("Price"));
    QLabel plain(QStringLiteral("Price"));
    QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint());
    label.setText(QString(100000, 'W'));
    QVERIFY(label.text().startsWith(QString(500, 'W')));
    QVERIFY(label.text().endsWith(ZrPlainText::mark()));
    QVERIFY(label.text().size() < 1000);
    QCOMPARE(label.minimumSizeHint(), QSize(ZrLabelRoom::mostPx, plain.minimumSizeHint().height()));
    label.setWordWrap(true);
    QCOMPARE(label.minimumSizeHint().width(), ZrLabelRoom::mostPx);
}

ZR_TEST_MAIN(tst_ZrLabel)
#include "tst_zrlabel.moc"
