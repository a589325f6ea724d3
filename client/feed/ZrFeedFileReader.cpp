#include "ZrFeedFileReader.h"

ZrFeedFileReader::ZrFeedFileReader(const ZrFeedFile &file, ZrFeedProblems *problems)
    : m_file(file)
    , m_problems(problems)
{
}

QString ZrFeedFileReader::open(const ZrFeedFile *timeFile)
{
    if (!m_lines.open(m_file.path))
        return m_file.path + QStringLiteral(": ") + m_lines.error();
    QStringList names = m_file.columns;
    if (m_file.head) {
        if (!nextRow() || m_cut)
            return m_file.path + QStringLiteral(": there is no head line");
        for (int i = 0; i < m_row.size(); ++i)
            names.append(QString::fromUtf8(m_row.at(i)));
    }
    m_rowNumber = 0;
    const QString missing = m_columns.resolve(m_file, names);
    if (!missing.isEmpty())
        return m_file.path + QStringLiteral(": ") + missing;
    if (!timeFile)
        return QString();
    // Its lines are counted as skipped where the file itself is read.
    m_timeReader = std::make_unique<ZrFeedFileReader>(*timeFile, nullptr);
    numberRows();
    return m_timeReader->open(nullptr);
}

bool ZrFeedFileReader::isComment(const QByteArray &line) const
{
    return line.trimmed().isEmpty() || (!m_file.comment.isEmpty() && line.startsWith(m_file.comment));
}

// The next line that is neither empty nor a comment, split into fields where that can be done.
bool ZrFeedFileReader::nextRow()
{
    do {
        if (!m_lines.next(&m_line)) {
            if (m_problems && !m_lines.error().isEmpty())
                m_problems->addFile(m_file.path, m_lines.error());
            return false;
        }
    } while (isComment(m_line));
    ++m_rowNumber;
    m_cut = m_lines.wasTooLong() || !m_row.split(m_line, m_file.separator, m_file.quote);
    return true;
}

bool ZrFeedFileReader::next(ZrFeedEvent *event)
{
    while (nextRow()) {
        const bool timed = !m_timeReader || (m_timeReader->nextRow() && !m_timeReader->m_cut);
        QString problem;
        if (m_cut)
            problem = QStringLiteral("the line is too long or a quote is not closed");
        else if (!timed)
            problem = QStringLiteral("the file with the times has no such line");
        *event = ZrFeedEvent();
        if (problem.isEmpty() && readRow(event, &problem)) {
            if (event->kind != ZrFeedKind::Ignore)
                return true;
        } else if (m_problems) {
            m_problems->add(m_file.path, m_lines.lineNumber(), problem);
        }
    }
    return false;
}

bool ZrFeedFileReader::readRow(ZrFeedEvent *event, QString *problem)
{
    if (!readKindAndSide(event, problem))
        return false;
    if (event->kind == ZrFeedKind::Ignore)
        return true;
    ZrFeedFileReader &timed = m_timeReader ? *m_timeReader : *this;
    if (!timed.readTime(event, problem) || !readSymbol(event, problem) || !readNumbers(event, problem))
        return false;
    if (m_numberRows)
        event->sequence = m_rowNumber;
    readOrders(event);
    return readLevels(event, problem) && fitsKind(*event, problem);
}

bool ZrFeedFileReader::readTime(ZrFeedEvent *event, QString *problem)
{
    const QByteArray text = m_row.at(m_columns.time);
    if (!m_file.time.read(text, &event->timeNs)) {
        *problem = QStringLiteral("\"%1\" is no time of the form told").arg(QString::fromUtf8(text.left(40)));
        return false;
    }
    if (m_columns.sequence >= 0) {
        bool good = false;
        event->sequence = m_row.at(m_columns.sequence).toLongLong(&good);
        if (!good || event->sequence < 0)
            event->sequence = -1;
    }
    return true;
}

bool ZrFeedFileReader::readSymbol(ZrFeedEvent *event, QString *problem) const
{
    const QByteArray code = m_columns.security >= 0 ? m_row.at(m_columns.security) : m_file.securityConstant;
    if (code.isEmpty() || code.size() > 64) {
        *problem = QStringLiteral("the security is missing");
        return false;
    }
    QByteArray suffix = m_file.exchangeConstant;
    if (m_columns.exchange >= 0) {
        const QByteArray text = m_row.at(m_columns.exchange);
        suffix = m_file.exchangeWords.value(text, m_file.exchangeWords.value("*", text)).left(64);
    }
    for (const auto &prefix : m_file.exchangePrefixes) {
        if (code.startsWith(prefix.first)) {
            suffix = prefix.second;
            break;
        }
    }
    event->symbol = suffix.isEmpty() ? code : code + '.' + suffix;
    return true;
}

bool ZrFeedFileReader::readKindAndSide(ZrFeedEvent *event, QString *problem) const
{
    event->kind = m_file.kindConstant;
    if (m_columns.kind >= 0) {
        const QByteArray text = m_row.at(m_columns.kind);
        const auto any = m_file.kindWords.constFind("*");
        const auto found = m_file.kindWords.constFind(text);
        if (found == m_file.kindWords.cend() && any == m_file.kindWords.cend()) {
            *problem = QStringLiteral("\"%1\" is no kind of event").arg(QString::fromUtf8(text.left(40)));
            return false;
        }
        event->kind = found != m_file.kindWords.cend() ? *found : *any;
    }
    if (m_columns.side < 0 || event->kind == ZrFeedKind::Ignore || event->kind == ZrFeedKind::Phase)
        return true;
    const QByteArray text = m_row.at(m_columns.side);
    const auto any = m_file.sideWords.constFind("*");
    const auto found = m_file.sideWords.constFind(text);
    if (found == m_file.sideWords.cend() && any == m_file.sideWords.cend()) {
        *problem = QStringLiteral("\"%1\" is no side").arg(QString::fromUtf8(text.left(40)));
        return false;
    }
    event->side = found != m_file.sideWords.cend() ? *found : *any;
    return true;
}

bool ZrFeedFileReader::readNumber(const ZrFeedNumber &number, int column, ZrDecimal *value,
                                  bool *present) const
{
    const QByteArray text = m_row.at(column);
    *present = false;
    if (column < 0 || text.isEmpty() || number.noValue.contains(text))
        return true;
    if (!ZrDecimal::parse(text, value, number.numerator, number.denominator))
        return false;
    *value = value->roundedTo(number.tick);
    *present = true;
    return true;
}

bool ZrFeedFileReader::readNumbers(ZrFeedEvent *event, QString *problem) const
{
    bool ignored = false;
    const bool good =
        readNumber(m_file.price, m_columns.price, &event->price, &event->hasPrice) &&
        readNumber(m_file.quantity, m_columns.quantity, &event->quantity, &event->hasQuantity) &&
        readNumber(m_file.previousClose, m_columns.previousClose, &event->previousClose, &ignored) &&
        readNumber(m_file.last, m_columns.last, &event->last, &ignored);
    if (!good)
        *problem = QStringLiteral("a price or a quantity is no number");
    return good;
}

void ZrFeedFileReader::readOrders(ZrFeedEvent *event) const
{
    const auto numberAt = [this](int column) {
        const QByteArray text = m_row.at(column);
        return text == "0" || text == "-1" ? QByteArray() : text.left(64);
    };
    event->order = numberAt(m_columns.order);
    event->newOrder = numberAt(m_columns.newOrder);
    event->buyOrder = numberAt(m_columns.buyOrder);
    event->sellOrder = numberAt(m_columns.sellOrder);
    event->phase = m_row.at(m_columns.phase).left(64);
    event->phase = m_file.phaseWords.value(event->phase, m_file.phaseWords.value("*", event->phase));
    event->quantityIsRest = m_file.quantityIsRest;
    // Some venues tell withdrawals among their trades: one of the two numbers names the order.
    if (event->order.isEmpty() && event->kind != ZrFeedKind::Trade)
        event->order = event->buyOrder.isEmpty() ? event->sellOrder : event->buyOrder;
}

bool ZrFeedFileReader::readLevels(ZrFeedEvent *event, QString *problem) const
{
    if (event->kind != ZrFeedKind::Book)
        return true;
    bool good = true;
    event->asks = levelsOf(m_columns.askPrices, m_columns.askQuantities, &good);
    event->bids = levelsOf(m_columns.bidPrices, m_columns.bidQuantities, &good);
    if (!good)
        *problem = QStringLiteral("a level's price or quantity is no number");
    return good;
}

QVector<ZrFeedLevel> ZrFeedFileReader::levelsOf(const QVector<int> &prices, const QVector<int> &quantities,
                                                bool *good) const
{
    QVector<ZrFeedLevel> result;
    result.reserve(prices.size());
    for (int i = 0; i < prices.size() && i < quantities.size(); ++i) {
        ZrFeedLevel level;
        bool hasPrice = false;
        bool hasQuantity = false;
        *good = *good && readNumber(m_file.price, prices.at(i), &level.price, &hasPrice) &&
                readNumber(m_file.quantity, quantities.at(i), &level.quantity, &hasQuantity);
        // Files fill what is no level with an odd price and no quantity.
        if (hasPrice && hasQuantity && !level.quantity.isZero())
            result.append(level);
    }
    return result;
}

bool ZrFeedFileReader::fitsKind(const ZrFeedEvent &event, QString *problem) const
{
    switch (event.kind) {
    case ZrFeedKind::Add:
    case ZrFeedKind::Delete:
    case ZrFeedKind::Cancel:
    case ZrFeedKind::Modify:
    case ZrFeedKind::Reject:
        if (event.order.isEmpty())
            *problem = QStringLiteral("the order's number is missing");
        if (event.kind == ZrFeedKind::Add && !event.hasQuantity)
            *problem = QStringLiteral("the order's quantity is missing");
        break;
    case ZrFeedKind::Execute:
    case ZrFeedKind::Fill:
    case ZrFeedKind::Trade:
        if (!event.hasQuantity)
            *problem = QStringLiteral("the quantity is missing");
        break;
    case ZrFeedKind::Book:
    case ZrFeedKind::Phase:
    case ZrFeedKind::Ignore:
        break;
    }
    if (problem->isEmpty() && event.hasQuantity && event.quantity < ZrDecimal())
        *problem = QStringLiteral("the quantity is below zero");
    return problem->isEmpty();
}
