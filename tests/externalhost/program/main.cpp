// A grid on the second host: what it shows follows that host's rules, not the reference host's.
#include "ZrTableView.h"

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>

static RecordData record(const QString &text)
{
    RecordData row;
    row[0][QStringLiteral("0")] = text;
    row[0][QStringLiteral("256")] = text.size();
    return row;
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ZrTableView view(nullptr);
    HeadList heads{{{QStringLiteral("Head_DisplayRole"), QStringLiteral("Name")}}};
    view.setHeadList(heads);
    view.setKeyColumn({0});
    view.setSummaryLineEnable(true, {});
    view.addRecordDataList(
        {record(QStringLiteral("ccc")), record(QStringLiteral("a")), record(QStringLiteral("bb"))});
    view.getZrTableModel()->slotSortIndicatorChanged(0, Qt::AscendingOrder);
    QStringList shown;
    for (const RecordData &row : view.getViewData())
        shown << row.value(0).value(QStringLiteral("0")).toString();
    const QString sum = view.getZrTableModel()->getSumRecord().value(0).value(QStringLiteral("0")).toString();
    qInfo() << shown << sum;
    return shown == QStringList{QStringLiteral("a"), QStringLiteral("bb"), QStringLiteral("ccc")} &&
                   sum == QLatin1String("3")
               ? 0
               : 1;
}
