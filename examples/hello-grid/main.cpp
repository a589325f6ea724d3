// A live grid: three securities whose prices move twice a second. "--once" moves them once and quits.
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <ZrReferenceHost.h>
#include <ZrTableView.h>

// A cell maps roles to values: "0" is what is shown, "256" the raw value that sorts, filters and sums.
static ItemRoleMap cell(const QString &text, const QVariant &raw)
{
    return {{QStringLiteral("0"), text}, {QStringLiteral("256"), raw}};
}

static RecordData quote(const QString &symbol, double price, int lots)
{
    return {{0, cell(symbol, symbol)},
            {1, cell(QString::number(price, 'f', 2), price)},
            {2, cell(QString::number(lots), lots)}};
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    ZrReferenceHost host;
    ZrReferenceHost::Options options;
    options.skinRoot = QStringLiteral(SKINS);
    options.skinId = QStringLiteral("dark");
    if (!host.start(options))
        qFatal("%s", qPrintable(host.errorText()));

    ZrTableView view(nullptr);
    HeadList heads;
    for (const char *text : {"Symbol", "Price", "Lots"})
        heads.append({{QStringLiteral("Head_DisplayRole"), QString::fromLatin1(text)}});
    view.setHeadList(heads);
    view.setKeyColumn({0}); // an update finds its row by the symbol
    view.setSummaryLineEnable(true, {0, 1});
    view.addRecordDataList({quote(QStringLiteral("600001.SH"), 10.00, 3),
                            quote(QStringLiteral("600002.SH"), 20.00, 5),
                            quote(QStringLiteral("000001.SZ"), 30.00, 7)});
    view.resize(420, 200);
    view.show();

    QTimer clock;
    const bool once = app.arguments().contains(QStringLiteral("--once"));
    QObject::connect(&clock, &QTimer::timeout, [&view, once, step = 0]() mutable {
        ++step;
        view.updataRecordData(quote(QStringLiteral("600002.SH"), 20.00 + step * 0.01, 5 + step));
        if (!once)
            return;
        const RecordData row = view.getRowDataByKey(QStringLiteral("600002.SH"));
        QApplication::exit(row.value(1).value(QStringLiteral("0")) == QStringLiteral("20.01") ? 0 : 1);
    });
    clock.start(once ? 0 : 500);
    return app.exec();
}
