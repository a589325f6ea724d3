#pragma once

#include "ZrFeedEvent.h"
#include "ZrFeedTime.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// A column of a CSV file: by its head text or by its number from 0.
struct ZrFeedColumn
{
    QString name;
    int number = -1;
    bool isSet() const { return number >= 0 || !name.isEmpty(); }
};

/// A column of numbers.
struct ZrFeedNumber
{
    ZrFeedColumn column;
    qint64 numerator = 1; // the text times numerator / denominator is the value
    qint64 denominator = 1;
    ZrDecimal tick;              // zero: not rounded
    QVector<QByteArray> noValue; // texts that stand for "none", beside the empty one
};

/// Numbered columns: "AskPrice%1" with a running number, or a first column number and a step.
struct ZrFeedPattern
{
    QString pattern;
    int first = -1;
    int step = 0;
    bool isSet() const { return first >= 0 || !pattern.isEmpty(); }
};

struct ZrFeedLevelColumns
{
    ZrFeedPattern askPrice;
    ZrFeedPattern askQuantity;
    ZrFeedPattern bidPrice;
    ZrFeedPattern bidQuantity;
    int from = 1; // first and last running number
    int to = 0;
};

enum class ZrFeedRole { Orders, Trades, Books };

/// What one file of a recording holds, and where.
struct ZrFeedFile
{
    QString path;
    ZrFeedRole role = ZrFeedRole::Orders;

    char separator = ',';
    char quote = '"';
    QByteArray comment; // lines that begin with it are none; empty: there are no comments
    bool head = true;
    QStringList columns; // names of the columns of a file without a head line

    ZrFeedTime time;
    ZrFeedColumn timeColumn;
    int alignedWith = -1; // index of the file whose row of the same number has the time
    ZrFeedColumn sequence;

    ZrFeedColumn security;
    QByteArray securityConstant;
    ZrFeedColumn exchange;
    QByteArray exchangeConstant;
    QHash<QByteArray, QByteArray> exchangeWords;             // empty: the column's text is the suffix
    QVector<QPair<QByteArray, QByteArray>> exchangePrefixes; // longest first

    ZrFeedColumn side;
    QHash<QByteArray, ZrFeedSide> sideWords;
    ZrFeedColumn kind;
    QHash<QByteArray, ZrFeedKind> kindWords;
    ZrFeedKind kindConstant = ZrFeedKind::Add;

    ZrFeedColumn order;
    ZrFeedColumn newOrder;
    ZrFeedColumn buyOrder;
    ZrFeedColumn sellOrder;
    ZrFeedNumber price;
    ZrFeedNumber quantity;
    bool quantityIsRest = false;

    ZrFeedColumn phase;
    QHash<QByteArray, QByteArray> phaseWords;
    ZrFeedNumber previousClose;
    ZrFeedNumber last;
    ZrFeedLevelColumns levels;
};

/// A recording as its feed description tells it.
///
/// Shape: a value; read by ZrFeedDescriptionReader, see docs/feed-description.md.
struct ZrFeedDescription
{
    QString name;
    QVector<ZrFeedFile> files;
};
