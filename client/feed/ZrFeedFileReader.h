#pragma once

#include "ZrCsvLine.h"
#include "ZrFeedColumns.h"
#include "ZrFeedDescription.h"
#include "ZrFeedProblems.h"
#include "ZrLineReader.h"

#include <memory>

/// Turns the lines of one recorded file into events.
///
/// Shape:     a stream: one line and its event at a time. A file whose times stand in another one reads
///            that one beside itself, row by row.
/// Ownership: borrows the description's file entries and the list of problems.
/// Errors:    open() gives one sentence or nothing; a line that cannot be read is skipped and counted.
class ZrFeedFileReader
{
public:
    ZrFeedFileReader(const ZrFeedFile &file, ZrFeedProblems *problems);

    /// `timeFile` is the file whose rows hold the times of this one's; null: it has its own.
    QString open(const ZrFeedFile *timeFile);
    bool next(ZrFeedEvent *event);
    /// Number events by their row, so that files that belong together row by row stay together.
    void numberRows() { m_numberRows = true; }

private:
    bool nextRow();
    bool isComment(const QByteArray &line) const;
    bool readRow(ZrFeedEvent *event, QString *problem);
    bool readTime(ZrFeedEvent *event, QString *problem);
    bool readSymbol(ZrFeedEvent *event, QString *problem) const;
    bool readKindAndSide(ZrFeedEvent *event, QString *problem) const;
    bool readNumbers(ZrFeedEvent *event, QString *problem) const;
    bool readLevels(ZrFeedEvent *event, QString *problem) const;
    bool readNumber(const ZrFeedNumber &number, int column, ZrDecimal *value, bool *present) const;
    void readOrders(ZrFeedEvent *event) const;
    bool fitsKind(const ZrFeedEvent &event, QString *problem) const;
    QVector<ZrFeedLevel> levelsOf(const QVector<int> &prices, const QVector<int> &quantities,
                                  bool *good) const;

    const ZrFeedFile m_file;
    ZrFeedProblems *const m_problems; // not owned
    ZrLineReader m_lines;
    ZrFeedColumns m_columns;
    ZrCsvLine m_row;
    QByteArray m_line;
    qint64 m_rowNumber = 0;
    bool m_numberRows = false;
    bool m_cut = false; // the row that nextRow() gave could not be split
    std::unique_ptr<ZrFeedFileReader> m_timeReader;
};
