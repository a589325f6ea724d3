#include "ComboScene.h"
#include "ZrLinkageCombox.h"

#include <QtWidgets/QAbstractItemView>

class tst_ZrLinkageCombox : public QObject
{
    Q_OBJECT
private slots:
    void fourNumbersColourTheBox_data()
    {
        QTest::addColumn<QString>("rgba");
        QTest::newRow("group colour") << QStringLiteral("255,127,39,150");
        QTest::newRow("least") << QStringLiteral("0,0,0,0");
        QTest::newRow("most") << QStringLiteral("255,255,255,255");
        QTest::newRow("blanks") << QStringLiteral(" 1, 2 ,3,  4");
    }

    void fourNumbersColourTheBox()
    {
        QFETCH(QString, rgba);
        ZrLinkageCombox plain;
        plain.setComboBackground(rgba);
        QCOMPARE(plain.styleSheet(), "ZrLinkageCombox{background:rgba(" + rgba + ");}");

        ZrLinkageCombox editable;
        editable.setEditable(true);
        editable.setComboBackground(rgba);
        QCOMPARE(editable.lineEdit()->styleSheet(), "QLineEdit{background:rgba(" + rgba + ");}");
        QVERIFY(editable.styleSheet().isEmpty());
    }

    void anythingElseLeavesTheColourAndWarnsOnce_data()
    {
        QTest::addColumn<QString>("rgba");
        QTest::newRow("nothing") << QString();
        QTest::newRow("three numbers") << QStringLiteral("1,2,3");
        QTest::newRow("five numbers") << QStringLiteral("1,2,3,4,5");
        QTest::newRow("an empty one") << QStringLiteral("1,,3,4");
        QTest::newRow("256") << QStringLiteral("0,256,0,0");
        QTest::newRow("alpha of 256") << QStringLiteral("0,0,0,256");
        QTest::newRow("negative") << QStringLiteral("-1,0,0,0");
        QTest::newRow("sign") << QStringLiteral("+1,0,0,0");
        QTest::newRow("fraction") << QStringLiteral("0,0,0,0.5");
        QTest::newRow("percent") << QStringLiteral("0,0,0,50%");
        QTest::newRow("hexadecimal") << QStringLiteral("0x10,0,0,0");
        QTest::newRow("too many digits") << QStringLiteral("0001,0,0,0");
        QTest::newRow("other digits") << QStringLiteral("1,2,3,") + QChar(0x0664);
        QTest::newRow("a name") << QStringLiteral("red");
        QTest::newRow("blank inside") << QStringLiteral("1 2,0,0,0");
        QTest::newRow("more of a sheet")
            << QStringLiteral("1,2,3,4);} QWidget{background:url(/tmp/picture.png)");
        QTest::newRow("100,000 letters") << QString(100000, QLatin1Char('1'));
    }

    void anythingElseLeavesTheColourAndWarnsOnce()
    {
        QFETCH(QString, rgba);
        ZrLinkageCombox combo;
        combo.setComboBackground(QStringLiteral("9,8,7,6"));
        const QString before = combo.styleSheet();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^ZrLinkageCombox::setComboBackground "));
        combo.setComboBackground(rgba);
        QCOMPARE(combo.styleSheet(), before);

        combo.setEditable(true);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^ZrLinkageCombox::setComboBackground "));
        combo.setComboBackground(rgba);
        QVERIFY(combo.lineEdit()->styleSheet().isEmpty());
    }

    void boxAndListHaveNames()
    {
        ZrLinkageCombox combo;
        QVERIFY(!combo.accessibleName().isEmpty());
        QVERIFY(!combo.view()->accessibleName().isEmpty());
    }

    void theColourIsSeen()
    {
        QWidget window;
        // As the skins do: without a border of the sheet's own the style would shade the colour.
        window.setStyleSheet(QStringLiteral("QComboBox{border: 1px solid black;}"));
        ZrLinkageCombox combo(&window);
        combo.addItem(QStringLiteral("1"), QStringLiteral("0,162,232,255"));
        combo.setGeometry(0, 0, 80, 24);
        window.resize(200, 100);
        window.show();
        combo.setComboBackground(combo.currentData().toString());
        QCOMPARE(combo.grab().toImage().pixelColor(40, 4), QColor(0, 162, 232));
    }

    void aSheetKnowsABrightGroup_data()
    {
        QTest::addColumn<QString>("rgba");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("orange") << QStringLiteral("255,127,39,150") << QColor(Qt::white);
        QTest::newRow("yellow") << QStringLiteral("255,242,0,150") << QColor(Qt::black);
        QTest::newRow("indigo") << QStringLiteral("63,72,204,150") << QColor(Qt::white);
    }

    void aSheetKnowsABrightGroup()
    {
        QFETCH(QString, rgba);
        QFETCH(QColor, expected);
        QWidget window;
        window.setStyleSheet(QStringLiteral("ZrLinkageCombox{color: white;}"
                                            "ZrLinkageCombox[brightGroup=\"true\"]{color: black;}"));
        ZrLinkageCombox combo(&window);
        window.show();
        combo.setComboBackground(rgba);
        QCOMPARE(combo.palette().color(QPalette::ButtonText), expected);
    }

    void theKeyboardChoosesTheGroup()
    {
        QWidget window;
        ZrLinkageCombox combo(&window);
        for (const char *rgba : {"255,127,39,150", "255,242,0,150", "0,162,232,150"})
            combo.addItem(QStringLiteral("Security"), QString::fromLatin1(rgba));
        connect(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged), &combo,
                [&combo] { combo.setComboBackground(combo.currentData(Qt::UserRole).toString()); });
        window.resize(200, 100);
        window.show();
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(combo.currentIndex(), 1);
        QCOMPARE(combo.styleSheet(), QStringLiteral("ZrLinkageCombox{background:rgba(255,242,0,150);}"));
    }
};

ZR_TEST_MAIN(tst_ZrLinkageCombox)
#include "tst_zrlinkagecombox.moc"
