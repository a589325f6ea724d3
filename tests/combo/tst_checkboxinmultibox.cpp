#include "ComboScene.h"

#include <QtGui/QAccessible>

/// The check box of a row on its own, outside of a list.
class tst_CheckBoxInMultiBox : public QObject
{
    Q_OBJECT
private slots:
    void itIsAsWideAsItsParentAndAsHighAsItself()
    {
        QWidget parent;
        parent.resize(321, 200);
        CheckBoxInMultiBox box(&parent);
        box.resize(50, 19);
        QCOMPARE(box.sizeHint(), QSize(321, 19));
    }

    void withoutAParentItHasNoSizeAndNoPlaceToClick()
    {
        CheckBoxInMultiBox box;
        QCOMPARE(box.sizeHint(), QSize(-1, -1));
        box.resize(100, 30);
        box.show();
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(5, 15));
        QVERIFY(!box.isChecked());
    }

    void aClickAnywhereInsideToggles_data()
    {
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<bool>("expected");
        QTest::newRow("first pixel") << QPoint(0, 0) << true;
        QTest::newRow("indicator") << QPoint(8, 12) << true;
        QTest::newRow("empty right part") << QPoint(290, 12) << true;
        QTest::newRow("last pixel") << QPoint(299, 23) << true;
    }

    void aClickAnywhereInsideToggles()
    {
        QFETCH(QPoint, pos);
        QFETCH(bool, expected);
        QWidget parent;
        parent.resize(300, 200);
        CheckBoxInMultiBox box(QStringLiteral("x"), &parent);
        box.setGeometry(0, 0, 300, 24);
        parent.show();
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, pos);
        QCOMPARE(box.isChecked(), expected);
    }

    void aPressThatIsReleasedOutsideDoesNothing()
    {
        QWidget parent;
        parent.resize(300, 200);
        CheckBoxInMultiBox box(QStringLiteral("x"), &parent);
        box.setGeometry(0, 0, 300, 24);
        parent.show();
        QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(10, 40));
        QVERIFY(!box.isChecked());
    }

    void anAmpersandIsShownAndIsNoShortcut()
    {
        QWidget parent;
        parent.resize(300, 200);
        CheckBoxInMultiBox box(QStringLiteral("A&B"), &parent);
        box.setGeometry(0, 0, 300, 24);
        NotingCheckBoxes style;
        box.setStyle(&style);
        box.grab();
        QCOMPARE(style.texts, QStringList(QStringLiteral("A&&B")));
        QCOMPARE(box.text(), QStringLiteral("A&B"));
        QVERIFY(box.shortcut().isEmpty());
        QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(&box);
        QVERIFY(spoken);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("A&B"));
    }

    void aTextStaysOnOneLineAndInsideTheBox_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("100,000 letters without a blank") << QString(100000, QLatin1Char('W'));
        QTest::newRow("100,000 thin letters") << QString(100000, QLatin1Char('i'));
        QTest::newRow("lines") << QStringLiteral("one\ntwo\r\nthree\tfour") + QChar(0x2028) + "five";
        QTest::newRow("ampersands") << QString(5000, QLatin1Char('&'));
        QTest::newRow("Chinese") << QString(5000, QChar(0x4e2d));
        QTest::newRow("right to left") << QString(5000, QChar(0x05d0));
    }

    void aTextStaysOnOneLineAndInsideTheBox()
    {
        QFETCH(QString, text);
        QWidget parent;
        parent.resize(200, 200);
        CheckBoxInMultiBox box(text, &parent);
        box.setGeometry(0, 0, 200, 24);
        NotingCheckBoxes style;
        box.setStyle(&style);
        box.grab();
        QCOMPARE(style.texts.size(), 1);
        const QString drawn = style.texts.constFirst();
        for (const QChar end : {QChar('\n'), QChar('\r'), QChar('\t'), QChar(0x2028)})
            QVERIFY(!drawn.contains(end));
        const int width = box.fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, drawn).width();
        QVERIFY2(width <= style.places.constFirst().width(), qPrintable(QString::number(width)));
        QVERIFY(!drawn.isEmpty());
    }

    void itsTipIsNoMarkup()
    {
        QWidget parent;
        parent.resize(200, 200);
        CheckBoxInMultiBox box(&parent);
        box.setToolTip(QStringLiteral("<b>bold</b>"));
        parent.show();
        QVERIFY(tipOver(&box).contains(QStringLiteral("&lt;b&gt;bold")));
    }
};

ZR_TEST_MAIN(tst_CheckBoxInMultiBox)
#include "tst_checkboxinmultibox.moc"
