#include "HeadScene.h"

#include "ZrRoleKeys.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleFactory>

#include <limits>

const int HeadModel::withoutNumber = std::numeric_limits<int>::max();
const int HeadScene::sectionPx = 100;
const int HeadScene::heightPx = 40;
const QColor SkinFolder::check(10, 200, 10);
const QColor SkinFolder::uncheck(200, 10, 10);
const QColor SkinFolder::tristate(10, 10, 200);
const QColor SkinFolder::filter(200, 200, 10);
const QColor SkinFolder::filtered(10, 200, 200);
const QColor SkinFolder::filterHover(200, 10, 200);
const QColor SkinFolder::help(120, 60, 30);

HeadModel::HeadModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void HeadModel::setColumns(const QList<HeadColumn> &columns)
{
    beginResetModel();
    m_columns = columns;
    endResetModel();
}

void HeadModel::setHead(int section, int role, const QVariant &value)
{
    m_extra[section][role] = value;
    emit headerDataChanged(Qt::Horizontal, section, section);
}

int HeadModel::rowCount(const QModelIndex &) const
{
    return 3;
}

int HeadModel::columnCount(const QModelIndex &) const
{
    return m_columns.size();
}

QVariant HeadModel::data(const QModelIndex &, int) const
{
    return QVariant();
}

QVariant HeadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return QVariant();
    if (m_extra.value(section).contains(role))
        return m_extra.value(section).value(role);
    const HeadColumn &column = m_columns.at(section);
    switch (role) {
    case Qt::DisplayRole:
        return column.text;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignCenter);
    case ZrColumnIndexRole:
        return column.number == withoutNumber ? QVariant() : QVariant(column.number);
    case ZrGroupIdRole:
        return column.group;
    case ZrGroupNameRole:
        return column.groupName;
    default:
        return QVariant();
    }
}

QUrl FakeHost::headPicture(Picture picture) const
{
    static const QMap<Picture, QString> names{
        {Picture::Check, "check"},   {Picture::Uncheck, "uncheck"},   {Picture::Tristate, "tristate"},
        {Picture::Filter, "filter"}, {Picture::Filtered, "filtered"}, {Picture::FilterHover, "filterHover"}};
    return QUrl(QStringLiteral("img/%1.png").arg(names.value(picture)));
}

NotingStyle::NotingStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("windows")))
{
}

void NotingStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    if (const auto *const header = qstyleoption_cast<const QStyleOptionHeader *>(option))
        drawn.append({element, header->rect, header->text, header->sortIndicator, header->state,
                      painter->brushOrigin()});
    QProxyStyle::drawControl(element, option, painter, widget);
}

void NotingStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                               bool enabled, const QString &text, QPalette::ColorRole role) const
{
    if (role == QPalette::NoRole)
        itemTexts.append({rect, text});
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
}

QList<NotingStyle::Drawn> NotingStyle::of(ControlElement element) const
{
    QList<Drawn> result;
    for (const Drawn &one : qAsConst(drawn)) {
        if (one.element == element)
            result.append(one);
    }
    return result;
}

SkinFolder::SkinFolder()
{
    const QString skin = QStringLiteral("test");
    write(skin, "img/check.png", check);
    write(skin, "img/uncheck.png", uncheck);
    write(skin, "img/tristate.png", tristate);
    write(skin, "img/filter.png", filter);
    write(skin, "img/filtered.png", filtered);
    write(skin, "img/filterHover.png", filterHover);
    write(skin, "images/master/widget/help_pad.png", help);
    ZrReferenceHost::Options options;
    options.skinRoot = m_dir.filePath("skins");
    options.configFolder = m_dir.filePath("config");
    options.skinId = skin;
    m_ready = host.start(options);
}

bool SkinFolder::isReady() const
{
    return m_ready;
}

QString SkinFolder::folder(const QString &skin) const
{
    return m_dir.filePath("skins/" + skin);
}

void SkinFolder::write(const QString &skin, const QString &path, const QColor &color, const QSize &size)
{
    const QString file = folder(skin) + '/' + path;
    QDir().mkpath(QFileInfo(file).path());
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    QVERIFY(picture.save(file));
}

HeadScene::HeadScene(const QList<HeadColumn> &columns, bool withHost)
    : view(new QWidget)
    , table(new QTableView(view.get()))
    , model(new HeadModel(table))
    , head(new ZrHeaderView(Qt::Horizontal, table))
    , host(withHost ? new FakeHost(view.get()) : nullptr)
    , style(new NotingStyle)
{
    style->setParent(view.get());
    model->setColumns(columns);
    table->setModel(model);
    table->setHorizontalHeader(head);
    table->verticalHeader()->hide();
    table->setFrameShape(QFrame::NoFrame);
    head->setStyle(style);
    head->setStretchLastSection(false);
    head->setMinimumSectionSize(10);
    head->setDefaultSectionSize(sectionPx);
    head->setFixedHeight(heightPx);
    table->resize(sectionPx * columns.size() + 50, 200);
    view->resize(table->size());
    view->show();
    if (!QTest::qWaitForWindowExposed(view.get()))
        qWarning("the scene is not shown");
    shot();
}

HeadScene::~HeadScene() = default;

QList<HeadColumn> HeadScene::plain(int count)
{
    return groups(QString(count, '.'));
}

QList<HeadColumn> HeadScene::groups(const QString &letters)
{
    QList<HeadColumn> columns;
    for (int i = 0; i < letters.size(); ++i) {
        const QString group = letters.at(i) == '.' ? QString() : QString(letters.at(i));
        columns.append(
            {i, QStringLiteral("c%1").arg(i), group, group.isEmpty() ? QString() : "Group " + group});
    }
    return columns;
}

QImage HeadScene::shot() const
{
    style->drawn.clear();
    style->itemTexts.clear();
    return head->viewport()->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

QPoint HeadScene::centre(int section) const
{
    return at(section, head->sectionSize(section) / 2, heightPx / 2);
}

QPoint HeadScene::at(int section, int xInSection, int y) const
{
    return QPoint(head->sectionViewportPosition(section) + xInSection, y);
}

QList<int> HeadScene::order() const
{
    QList<int> sections;
    for (int visual = 0; visual < head->count(); ++visual)
        sections.append(head->logicalIndex(visual));
    return sections;
}

void HeadScene::press(const QPoint &point, Qt::MouseButton button)
{
    QTest::mousePress(head->viewport(), button, Qt::NoModifier, point);
}

void HeadScene::release(const QPoint &point, Qt::MouseButton button)
{
    QTest::mouseRelease(head->viewport(), button, Qt::NoModifier, point);
}

void HeadScene::click(const QPoint &point)
{
    press(point);
    release(point);
}

void HeadScene::moveHeld(const QPoint &point)
{
    // QTest's own move carries no pressed button.
    QMouseEvent move(QEvent::MouseMove, point, head->viewport()->mapToGlobal(point), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(head->viewport(), &move);
}

void HeadScene::drag(const QPoint &from, const QPoint &to)
{
    press(from);
    moveHeld(from + (to - from) / 2);
    moveHeld(to);
    release(to);
}
