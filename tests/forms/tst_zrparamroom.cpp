#include "ZrParamRoom.h"
#include "ZrTestMain.h"

#include <QtWidgets/QLabel>

class tst_ZrParamRoom : public QObject
{
    Q_OBJECT
private slots:
    void onlyALongTextIsBounded()
    {
        QLabel label;
        ZrParamRoom::bound(&label, QString(ZrParamRoom::longestCharacters, 'W'));
        QCOMPARE(label.minimumWidth(), 0);
        ZrParamRoom::bound(&label, QString(ZrParamRoom::longestCharacters + 1, 'W'));
        QCOMPARE(label.minimumWidth(), ZrParamRoom::leastPx);
    }
};

ZR_TEST_MAIN(tst_ZrParamRoom)
#include "tst_zrparamroom.moc"
