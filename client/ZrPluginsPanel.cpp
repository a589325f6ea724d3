#include "ZrPluginsPanel.h"

#include "ZrPluginCatalogue.h"
#include "ZrPluginTexts.h"

#include "FreezeTableView.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {
ItemRoleMap cell(const QString &text, const QVariant &raw)
{
    return {{ITEM_DISPLAYROLE, text}, {ITEM_USERROLE, raw}};
}

ItemRoleMap cell(const QString &text)
{
    return cell(text, text);
}

RecordData record(const ZrPluginEntry &entry)
{
    return {{ZrPluginsPanel::File, cell(ZrPluginTexts::fileName(entry), entry.file.path)},
            {ZrPluginsPanel::Id, cell(ZrPluginTexts::plain(entry.file.id))},
            {ZrPluginsPanel::Version, cell(ZrPluginTexts::plain(entry.file.version))},
            {ZrPluginsPanel::State, cell(ZrPluginTexts::state(entry))},
            {ZrPluginsPanel::Reason, cell(ZrPluginTexts::reason(entry))},
            {ZrPluginsPanel::ReadTime, cell(ZrPluginTexts::milliseconds(entry.readUs), entry.readUs)},
            {ZrPluginsPanel::LoadTime, cell(ZrPluginTexts::milliseconds(entry.loadUs), entry.loadUs)}};
}
} // namespace

ZrPluginsPanel::ZrPluginsPanel(ZrPluginCatalogue *catalogue, QWidget *parent)
    : QWidget(parent)
    , m_catalogue(catalogue)
    , m_notice(new QLabel(this))
    , m_view(new ZrTableView(this))
    , m_reason(new QLabel(this))
    , m_atStart(new QCheckBox(tr("Load at start"), this))
    , m_load(new QPushButton(tr("Load now"), this))
{
    setAttribute(Qt::WA_StyledBackground); // the sheet's, also where the dock is drawn alone
    createLayout();
    createColumns();
    showEntries();
    showNotice(ZrPluginTexts::notices(*catalogue).join(QLatin1Char('\n')));
    connect(m_view, &ZrTableView::currentIndexChanged, this, &ZrPluginsPanel::showCurrent);
    connect(m_load, &QPushButton::clicked, this, &ZrPluginsPanel::loadCurrent);
    connect(m_atStart, &QCheckBox::clicked, this, &ZrPluginsPanel::switchCurrent);
    const QStringList ended = catalogue->endedLastStart();
    if (!ended.isEmpty())
        select(ended.constFirst());
    showCurrent();
}

void ZrPluginsPanel::createLayout()
{
    m_notice->setObjectName(QStringLiteral("pluginNotice"));
    m_reason->setObjectName(QStringLiteral("pluginReason"));
    m_atStart->setObjectName(QStringLiteral("pluginAtStart"));
    m_load->setObjectName(QStringLiteral("pluginLoad"));
    for (QLabel *const label : {m_notice, m_reason}) {
        label->setTextFormat(Qt::PlainText); // names and details come from the files
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    m_notice->setAccessibleName(tr("Notice about plugins"));
    m_reason->setAccessibleName(tr("Reason"));
    m_view->getTableView()->setAccessibleName(tr("Plugin files"));
    m_atStart->setToolTip(tr("Whether the next start loads this plugin"));
    m_load->setToolTip(tr("Loads the plugin in spite of what the start left out"));
    auto *const line = new QHBoxLayout;
    line->addWidget(m_reason, 1);
    line->addWidget(m_atStart);
    line->addWidget(m_load);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_notice);
    layout->addWidget(m_view, 1);
    layout->addLayout(line);
}

void ZrPluginsPanel::createColumns()
{
    const QStringList titles = {tr("File"),      tr("ID"),        tr("Version"), tr("State"),
                                tr("Read (ms)"), tr("Load (ms)"), tr("Reason")};
    const int widths[ColumnCount] = {200, 140, 80, 100, 90, 90, 420};
    HeadList heads;
    for (const QString &title : titles)
        heads.append({{HEAD_DISPLAYROLE, title}});
    m_view->setTableViewCaption(tr("Plugin files"));
    m_view->setHeadList(heads);
    m_view->setKeyColumn({File});
    for (int column = 0; column < ColumnCount; ++column) {
        const bool isNumber = column == ReadTime || column == LoadTime;
        m_view->setColumnWidth(column, widths[column]);
        m_view->setColumnTextAlignment(column,
                                       int((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    }
    m_view->setStretchLastSection(true);
    m_view->SetAlternatingRowColors(true);
    m_view->setItemGridShow(true);
    m_view->setItemSelectable(true);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
}

void ZrPluginsPanel::showEntries()
{
    RecordDataList rows;
    for (const ZrPluginEntry &entry : m_catalogue->entries())
        rows.append(record(entry));
    if (m_view->getRowCount() == 0)
        m_view->addRecordDataList(rows);
    else
        m_view->updataRecordDatas(rows); // keeps the current row
}

void ZrPluginsPanel::showNotice(const QString &text)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

void ZrPluginsPanel::select(const QString &pluginId)
{
    for (int row = 0; row < m_view->getRowCount(); ++row) {
        if (m_view->getRowData(row).value(Id).value(ITEM_USERROLE).toString() == pluginId)
            m_view->setCurrentIndex(m_view->index(row, 0), true);
    }
}

const ZrPluginEntry *ZrPluginsPanel::current() const
{
    const QModelIndex index = m_view->currentIndex();
    const QString path = m_view->getRowData(index.row()).value(File).value(ITEM_USERROLE).toString();
    const QVector<ZrPluginEntry> &entries = m_catalogue->entries();
    const auto found = std::find_if(entries.cbegin(), entries.cend(),
                                    [&path](const ZrPluginEntry &entry) { return entry.file.path == path; });
    return index.isValid() && found != entries.cend() ? &*found : nullptr;
}

void ZrPluginsPanel::showCurrent()
{
    const ZrPluginEntry *const entry = current();
    const bool isUsable = entry && entry->state != ZrPluginEntry::Refused;
    m_reason->setText(entry ? ZrPluginTexts::reason(*entry) : QString());
    m_atStart->setEnabled(isUsable);
    m_atStart->setChecked(isUsable && !m_catalogue->isSwitchedOff(entry->file.id));
    m_load->setEnabled(isUsable && entry->state != ZrPluginEntry::Loaded);
}

void ZrPluginsPanel::loadCurrent()
{
    const ZrPluginEntry *const entry = current();
    if (!entry)
        return;
    const QString id = entry->file.id;
    const bool isLoaded = m_catalogue->load(id);
    showEntries();
    showCurrent();
    if (isLoaded)
        emit signalLoaded(id);
}

void ZrPluginsPanel::switchCurrent(bool isWanted)
{
    const ZrPluginEntry *const entry = current();
    if (entry && !m_catalogue->setSwitchedOff(entry->file.id, !isWanted))
        showNotice(tr("The choice cannot be kept: the configuration folder cannot be written."));
    showEntries();
    showCurrent();
}
