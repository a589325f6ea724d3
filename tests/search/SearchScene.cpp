#include "SearchScene.h"

#include "ZrQuietPlatform.h"

#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtGui/QWindow>

namespace {
QVariantMap security(const char *symbol, const char *name, const char *key, const char *type)
{
    return {{Vexlor_Fields::Security::symbol, QString(symbol)},
            {Vexlor_Fields::Security::chineseName, QString(name)},
            {QStringLiteral("SearchKey"), QString(key)},
            {QStringLiteral("SecurityType"), QString(type)}};
}

QList<QVariantMap> securities()
{
    return {security("600519.SH", "Maotai", "GZMT", "Stock"),
            security("600520.SH", "Wenfeng", "WFGF", "Stock"),
            security("688001.SH", "Kechuang", "KCGF", "Stock"),
            security("000001.SZ", "Pingan", "PAYH", "Stock"),
            security("000001.SH", "Composite", "SZZS", "Index"),
            security("510300.SH", "Fund 300", "", "Fund")};
}
} // namespace

SearchScene::SearchScene(const QString &skin)
    : m_window(new QWidget)
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = skin;
    m_ready = m_host.start(options);
    m_host.setSecurities(securities());
    m_host.setMainWindow(m_window.get());
    m_box = new ZrSearchBox(m_window.get());
    m_other = new QLineEdit(m_window.get());
    m_box->setGeometry(20, 30, 120, 28);
    m_other->setGeometry(20, 300, 120, 28);
    // Away from the corner: global and own coordinates differ.
    m_window->setGeometry(60, 70, 400, 400);
    m_window->show();
    m_window->activateWindow();
    m_box->setFocus();
    m_ready = m_ready && QTest::qWaitForWindowActive(m_window.get());
}

SearchScene::~SearchScene()
{
    m_host.setMainWindow(nullptr);
}

QStringList SearchScene::rows() const
{
    QStringList texts;
    const QAbstractItemModel *const model = completer()->completionModel();
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, 0).data().toString());
    return texts;
}

void SearchScene::type(const QString &text)
{
    for (const QChar &character : text)
        QTest::keyClick(m_window->windowHandle(), character.toLatin1());
}

void SearchScene::press(Qt::Key key)
{
    QTest::keyClick(m_window->windowHandle(), key);
}

void SearchScene::clickRow(int row)
{
    const QRect place = popup()->visualRect(popup()->model()->index(row, 0));
    QTest::mouseClick(popup()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
}

QVector<int> SearchScene::pickTimers() const
{
    QVector<int> ids;
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(m_box);
    for (const auto &timer : timers) {
        if (timer.interval == 250 && timer.timerType == Qt::CoarseTimer)
            ids.append(timer.timerId);
    }
    return ids;
}

void SearchScene::ringPickTimer()
{
    const QVector<int> ids = pickTimers();
    if (ids.size() != 1) {
        QTest::qFail("there is not exactly one clock", __FILE__, __LINE__);
        return;
    }
    QTimerEvent event(ids.constFirst());
    QCoreApplication::sendEvent(m_box, &event);
}

void SearchScene::endBox()
{
    delete m_box.data();
}

QString SearchScene::row(const QString &symbol, const QString &name)
{
    return symbol + Constants::SymbolSearch_Split + name;
}
