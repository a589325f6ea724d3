// A synchronous request to a service and back.
#include "ZrBench.h"
#include "ZrPresenterClass.h"
#include "ZrReferenceHost.h"

#include <QtCore/QEventLoop>
#include <QtCore/QThread>
#include <zrdefine/VexlorFields.h>
#include <zrmsg/CMessageCommon.h>

namespace {
constexpr int Trips = 2000;
const char *const RequestType = "BenchQuery";

// Two objects on two threads that send one signal to and fro; the asking side waits in an event loop of its
// own for each answer, as a synchronous request does.
class PingPong : public QObject
{
    Q_OBJECT
public:
    PingPong()
    {
        m_other.moveToThread(&m_thread);
        connect(
            this, &PingPong::ping, &m_other, [this] { emit pong(); }, Qt::QueuedConnection);
        connect(this, &PingPong::pong, &m_loop, &QEventLoop::quit, Qt::QueuedConnection);
        m_thread.start();
    }
    ~PingPong() override
    {
        m_thread.quit();
        m_thread.wait();
    }
    double microseconds()
    {
        return 1e6 / Trips * wallSecondsOf([this] {
                   for (int i = 0; i < Trips; ++i) {
                       emit ping();
                       m_loop.exec();
                   }
               });
    }

signals:
    void ping();
    void pong();

private:
    QThread m_thread;
    QObject m_other;
    QEventLoop m_loop;
};

class BusFixture
{
public:
    BusFixture()
    {
        m_host.start(ZrReferenceHost::Options());
        m_host.registerService(QLatin1String(RequestType), [](const ZrReferenceHost::Request &request) {
            return QList<ZrReferenceHost::Answer>{{QVariant(), request.records}};
        });
        m_presenter =
            new ZrPresenterClass(QStringLiteral("bench#1"), nullptr, IMessageInterface::ThreadType(1));
    }
    ~BusFixture()
    {
        m_presenter->deleteLater();
        m_host.waitIdle(1000);
        m_host.stop();
    }
    double microseconds()
    {
        return 1e6 / Trips * wallSecondsOf([this] {
                   for (int i = 0; i < Trips; ++i)
                       request();
               });
    }

private:
    void request()
    {
        auto message = std::make_unique<CMessageCommon>();
        message->SetMsg(
            QVariantList{QVariantMap{{Vexlor_Fields::System::msgType, QLatin1String(RequestType)},
                                     {Vexlor_Fields::System::clientMsgID, QString::number(++m_id)}}});
        QVariant response;
        // The bus takes over what was sent; a refused message stays ours.
        if (m_presenter->sendRequest_Sync(message.get(), response) >= 0)
            message.release();
        if (response.isNull())
            qFatal("bus/round_trip: no answer");
    }
    ZrReferenceHost m_host;
    ZrPresenterClass *m_presenter; // goes by its own deleteLater
    int m_id = 0;
};
} // namespace

ZrBenchCases busBenches()
{
    const ZrBenchRow row = {"bus/round_trip", "us", false, {}, "queued signals between two threads",
                            ZrBenchRow::None, 3};
    // New threads for each repetition, on both sides: whether two threads share a processor, and so what a
    // change between them costs, is settled soon after they begin and by chance. Kept threads would repeat
    // one throw.
    return {{row, [] {
                 return ZrBenchSides{[] { return BusFixture().microseconds(); },
                                     {},
                                     [] { return PingPong().microseconds(); }};
             }}};
}

#include "bench_bus.moc"
