#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <zrutils/ZrRecordTypes.h>

#include <random>

/// One value of the measured table: what is shown and what it is.
struct ZrBenchCell
{
    QString text;
    QVariant raw;
};

using ZrBenchCells = QVector<ZrBenchCell>;

/// The measured table: 5 texts (the first is the key), 11 doubles, 3 integers, 1 time. The same seed gives
/// the same table; every text is a string of its own, as it is when rows come from messages.
class ZrBenchData
{
public:
    static constexpr int Rows = 100000;
    static constexpr int TextColumns = 5;
    static constexpr int DoubleColumns = 11;
    static constexpr int IntColumns = 3;
    static constexpr int Columns = TextColumns + DoubleColumns + IntColumns + 1;
    static constexpr int KeyColumn = 0;
    static constexpr int NameColumn = 2; // the text that is sorted by
    static constexpr int FirstDouble = TextColumns;
    static constexpr int PriceColumn = FirstDouble; // the number that is sorted and filtered by: 0 to 1000
    static constexpr double MostPrice = 1000.0;

    explicit ZrBenchData(uint seed = 20240131, int columns = Columns);

    static QString keyOf(int number);
    static ZrBenchCell doubleCell(double value);
    /// Row number `number` of the table.
    ZrBenchCells row(int number);
    RecordData record(int number);
    RecordDataList records(int count);
    /// The key and three changed cells for each of `count` random rows among `rows`. With `priceToo` the
    /// filtered column is one of the three.
    RecordDataList updates(int count, int rows, bool priceToo = false);

    static RecordData toRecord(const ZrBenchCells &cells);
    static HeadList heads(int columns = Columns);

private:
    static ItemRoleMap toRoles(const ZrBenchCell &cell);
    QString word(int length);
    double price();

    std::mt19937 m_random;
    int m_columns;
};
