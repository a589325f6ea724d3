#include "EditorScene.h"
#include "ZrMoneyQtyLineEdit.h"
#include "ZrTestMain.h"

#include <QtGui/QRegExpValidator>
#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>

class tst_ZrMoneyQtyLineEdit : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aNewEditTakesAmountsAndHasNoRoles();
    void onlyAmountsCanBeTyped_data();
    void onlyAmountsCanBeTyped();
    void theReadingIsTheToolTip_data();
    void theReadingIsTheToolTip();
    void theReadingFollowsEachKey();
    void theReadingFloatsOverTheLowerEdge();
    void anEmptyAmountHasNoReading();
    void aTextThatIsSetIsReadToo();
    void enterTellsThePlainDigits_data();
    void enterTellsThePlainDigits();
    void otherKeysTellNothing();
    void theBaseSeesEveryKey();
    void roleDataReadsBack();
    void outsideTextIsNoMarkup_data();
    void outsideTextIsNoMarkup();
    void aHugeTextHasABoundedTip();
    void theTipIsGoneWithTheEdit();

private:
    static QWidget *tip();
    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<ZrMoneyQtyLineEdit> m_edit;
};

void tst_ZrMoneyQtyLineEdit::init()
{
    m_quiet = std::make_unique<QuietPlatform>();
    m_edit = std::make_unique<ZrMoneyQtyLineEdit>();
    m_edit->resize(200, 24);
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
}

void tst_ZrMoneyQtyLineEdit::cleanup()
{
    QToolTip::hideText();
    m_edit.reset();
    QTRY_VERIFY(!QToolTip::isVisible());
    m_quiet.reset();
}

QWidget *tst_ZrMoneyQtyLineEdit::tip()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.cbegin(), all.cend(), [](const QWidget *widget) {
        return widget->objectName() == "qtooltip_label" && widget->isVisible();
    });
    return found == all.cend() ? nullptr : *found;
}

void tst_ZrMoneyQtyLineEdit::aNewEditTakesAmountsAndHasNoRoles()
{
    const auto *const validator = qobject_cast<const QRegExpValidator *>(m_edit->validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp(),
             QRegExp("([0-9]{1,13}[.]{0,1}[0-9]{0,3})", Qt::CaseSensitive, QRegExp::RegExp));
    QCOMPARE(m_edit->text(), QString());
    QCOMPARE(m_edit->toolTip(), QString());
    QVERIFY(!m_edit->getRoleData(0).isValid());
    QVERIFY(!m_edit->getRoleData(Qt::UserRole).isValid());
}

void tst_ZrMoneyQtyLineEdit::onlyAmountsCanBeTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    QTest::newRow("digits") << "1200"
                            << "1200";
    QTest::newRow("letters and signs are refused") << "-1a2,0+0e"
                                                   << "1200";
    QTest::newRow("the full stop needs a digit before") << ".5"
                                                        << "5";
    QTest::newRow("three decimals") << "1.2345"
                                    << "1.234";
    QTest::newRow("one full stop") << "1.2.3"
                                   << "1.23";
    QTest::newRow("thirteen digits with decimals") << "1234567890123.4567"
                                                   << "1234567890123.456";
    QTest::newRow("the full stop comes at thirteen digits at the latest") << "12345678901234.5"
                                                                          << "123456789012345";
    QTest::newRow("sixteen digits without a full stop") << "12345678901234567"
                                                        << "1234567890123456";
}

void tst_ZrMoneyQtyLineEdit::onlyAmountsCanBeTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QTest::keyClicks(m_edit.get(), typed);
    QCOMPARE(m_edit->text(), expected);
}

void tst_ZrMoneyQtyLineEdit::theReadingIsTheToolTip_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    QTest::newRow("four digits stand as they are") << "1234"
                                                   << "1234";
    QTest::newRow("four digits with decimals") << "1234.5"
                                               << "1234.5";
    QTest::newRow("ten thousands") << "12345678" << QStringLiteral("1234万5678");
    QTest::newRow("hundred millions") << "1234567890123.45" << QStringLiteral("12345亿6789万0123.45");
    QTest::newRow("decimals") << "12345.678" << QStringLiteral("1万2345.678");
    QTest::newRow("zeros") << "100000000" << QStringLiteral("1亿0000万0000");
    QTest::newRow("longest") << "1234567890123456" << QStringLiteral("12345678亿9012万3456");
}

void tst_ZrMoneyQtyLineEdit::theReadingIsTheToolTip()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QTest::keyClicks(m_edit.get(), typed);
    QCOMPARE(m_edit->toolTip(), expected);
    QCOMPARE(QToolTip::text(), expected);
    QVERIFY(tip());
    QCOMPARE(m_edit->text(), typed);
}

void tst_ZrMoneyQtyLineEdit::theReadingFollowsEachKey()
{
    QStringList readings;
    for (const char key : {'1', '2', '3', '4', '5', '.', '6'}) {
        QTest::keyClick(m_edit.get(), key);
        QCOMPARE(QToolTip::text(), m_edit->toolTip());
        readings += m_edit->toolTip();
    }
    QTest::keyClick(m_edit.get(), Qt::Key_Home);
    QTest::keyClick(m_edit.get(), Qt::Key_Delete);
    readings += m_edit->toolTip();
    QCOMPARE(QToolTip::text(), m_edit->toolTip());
    QCOMPARE(readings, QStringList({"1", "12", "123", "1234", QStringLiteral("1万2345"),
                                    QStringLiteral("1万2345."), QStringLiteral("1万2345.6"), "2345.6"}));
}

void tst_ZrMoneyQtyLineEdit::theReadingFloatsOverTheLowerEdge()
{
    m_edit->move(40, 60);
    QTest::keyClicks(m_edit.get(), "12345");
    QVERIFY(tip());
    const QPoint place = tip()->pos();
    // Where the toolkit puts a tip for this point; it keeps a distance to the pointer that is the style's.
    const QPoint point = m_edit->mapToGlobal(QPoint(0, m_edit->height())) - QPoint(0, 10);
    QToolTip::showText(point, QStringLiteral("1万2346"), m_edit.get());
    QCOMPARE(place, tip()->pos());
    QToolTip::showText(point - QPoint(0, 1), QStringLiteral("1万2347"), m_edit.get());
    QVERIFY(place != tip()->pos());
}

void tst_ZrMoneyQtyLineEdit::anEmptyAmountHasNoReading()
{
    QTest::keyClick(m_edit.get(), '7');
    QVERIFY(QToolTip::isVisible());
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QCOMPARE(m_edit->text(), QString());
    QCOMPARE(m_edit->toolTip(), QString());
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_ZrMoneyQtyLineEdit::aTextThatIsSetIsReadToo()
{
    m_edit->setText("20000");
    QCOMPARE(m_edit->toolTip(), QStringLiteral("2万0000"));
    QCOMPARE(QToolTip::text(), QStringLiteral("2万0000"));
    m_edit->clear();
    QCOMPARE(m_edit->toolTip(), QString());
}

void tst_ZrMoneyQtyLineEdit::enterTellsThePlainDigits_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("expectedReturns"); // the base tells of a finished amount only

    QTest::newRow("return") << int(Qt::Key_Return) << "12345678" << 1;
    QTest::newRow("enter of the number pad") << int(Qt::Key_Enter) << "12345678" << 1;
    QTest::newRow("nothing typed") << int(Qt::Key_Return) << "" << 0;
    QTest::newRow("unfinished") << int(Qt::Key_Return) << "123456." << 1;
}

void tst_ZrMoneyQtyLineEdit::enterTellsThePlainDigits()
{
    QFETCH(int, key);
    QFETCH(QString, typed);
    QFETCH(int, expectedReturns);
    QSignalSpy complete(m_edit.get(), &ZrMoneyQtyLineEdit::signalComplete);
    QSignalSpy base(m_edit.get(), &QLineEdit::returnPressed);
    QTest::keyClicks(m_edit.get(), typed);
    QTest::keyClick(m_edit.get(), Qt::Key(key));
    QCOMPARE(complete.count(), 1);
    QCOMPARE(complete.at(0).at(0).toString(), typed);
    QCOMPARE(base.count(), expectedReturns);
}

void tst_ZrMoneyQtyLineEdit::otherKeysTellNothing()
{
    QSignalSpy complete(m_edit.get(), &ZrMoneyQtyLineEdit::signalComplete);
    QTest::keyClicks(m_edit.get(), "12");
    QTest::keyClick(m_edit.get(), Qt::Key_Escape);
    QTest::keyClick(m_edit.get(), Qt::Key_Left);
    QCOMPARE(complete.count(), 0);
}

void tst_ZrMoneyQtyLineEdit::theBaseSeesEveryKey()
{
    QStringList order;
    connect(m_edit.get(), &QLineEdit::returnPressed, this, [&order] { order += "base"; });
    connect(m_edit.get(), &ZrMoneyQtyLineEdit::signalComplete, this, [&order] { order += "complete"; });
    QTest::keyClicks(m_edit.get(), "123");
    QTest::keyClick(m_edit.get(), Qt::Key_Left);
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QTest::keyClick(m_edit.get(), Qt::Key_Return);
    QCOMPARE(m_edit->text(), QString("13"));
    QCOMPARE(order, QStringList({"complete", "base"}));
}

void tst_ZrMoneyQtyLineEdit::roleDataReadsBack()
{
    m_edit->setRoleData(Qt::UserRole, "price");
    m_edit->setRoleData(Qt::UserRole, 7);
    QCOMPARE(m_edit->getRoleData(Qt::UserRole), QVariant(7));
    QVERIFY(!m_edit->getRoleData(0).isValid());
}

void tst_ZrMoneyQtyLineEdit::outsideTextIsNoMarkup_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("a short element") << "<b>1"
                                     << "<b>1";
    QTest::newRow("elements around the full stop") << "<i>.</i>"
                                                   << "<i>.</i>";
    QTest::newRow("a picture") << "<br>.<img src='/etc/hostname'>"
                               << "<br>.<img src='/etc/hostname'>";
    QTest::newRow("broken by the names") << "<b>12</b>" << QStringLiteral("<亿b>12万</b>");
}

void tst_ZrMoneyQtyLineEdit::outsideTextIsNoMarkup()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    m_edit->setText(text);
    const QString given = m_edit->toolTip();
    QTextDocument shown;
    if (Qt::mightBeRichText(given))
        shown.setHtml(given);
    else
        shown.setPlainText(given);
    QCOMPARE(shown.toPlainText(), expected);
    QCOMPARE(QToolTip::text(), given);
}

void tst_ZrMoneyQtyLineEdit::aHugeTextHasABoundedTip()
{
    m_edit->setText(QString(100000, '7'));
    QVERIFY(m_edit->toolTip().size() < 1000);
    QVERIFY(tip());
    QVERIFY(tip()->width() <= m_edit->screen()->availableGeometry().width());
    QCOMPARE(m_edit->width(), 200);
}

void tst_ZrMoneyQtyLineEdit::theTipIsGoneWithTheEdit()
{
    QTest::keyClicks(m_edit.get(), "5");
    QVERIFY(tip());
    m_edit.reset();
    QVERIFY(!tip());
}

ZR_TEST_MAIN(tst_ZrMoneyQtyLineEdit)
#include "tst_zrmoneyqtylineedit.moc"
