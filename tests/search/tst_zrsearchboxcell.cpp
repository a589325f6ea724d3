#include "SearchScene.h"

#include "FreezeTableView.h"
#include "ZrItemModelDeletage.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"
#include "ZrTableView.h"

/// The search box as the editor of a cell.
class tst_ZrSearchBoxCell : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aPickFinishesTheEdit();
    void theCommitComesBeforeTheEnd();
    void aBoxOnAWidgetInACellCommits();
    void outsideATableNothingIsFinished();

private:
    ZrSearchBox *edit();

    std::unique_ptr<SearchScene> m_scene;
    ZrTableView *m_table = nullptr; // the scene's window's
};

namespace {
constexpr int SymbolColumn = 1;

class EditableModel : public ZrTableModel
{
public:
    using ZrTableModel::ZrTableModel;
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return ZrTableModel::flags(index) | Qt::ItemIsEditable;
    }
};

class SymbolDelegate : public ZrItemModelDeletage
{
public:
    using ZrItemModelDeletage::ZrItemModelDeletage;
    mutable int commits = 0;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        auto *const box = new ZrSearchBox(parent);
        box->setSecurityType(QString());
        return box;
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        ++commits;
        const auto *const box = qobject_cast<ZrSearchBox *>(editor);
        model->setData(index, box ? box->getSymbol() : QString(), Qt::DisplayRole);
    }
};
} // namespace

void tst_ZrSearchBoxCell::init()
{
    m_scene = std::make_unique<SearchScene>();
    QVERIFY(m_scene->isReady());
    m_table = new ZrTableView(m_scene->window());
    m_table->setZrTableModel(new EditableModel(m_table));
    m_table->setZrTableItemDelegate(new SymbolDelegate(m_table));
    HeadList heads = {{{HEAD_DISPLAYROLE, "Key"}}, {{HEAD_DISPLAYROLE, "Symbol"}}};
    m_table->setHeadList(heads);
    m_table->setKeyColumn({0});
    m_table->addRecordData({{0, {{ITEM_DISPLAYROLE, "k"}}}, {SymbolColumn, {{ITEM_DISPLAYROLE, "old"}}}});
    m_table->setGeometry(10, 100, 380, 200);
    m_table->show();
}

void tst_ZrSearchBoxCell::cleanup()
{
    m_scene.reset();
}

ZrSearchBox *tst_ZrSearchBoxCell::edit()
{
    const QModelIndex index = m_table->index(0, SymbolColumn);
    m_table->getTableView()->setFocus();
    m_table->getTableView()->edit(index);
    return m_table->findChild<ZrSearchBox *>();
}

void tst_ZrSearchBoxCell::aPickFinishesTheEdit()
{
    const QPointer<ZrSearchBox> editor = edit();
    QVERIFY(editor);
    QVERIFY(editor->hasFocus());
    m_scene->type("600519");
    QVERIFY(editor);
    QCOMPARE(editor->getSymbol(), QString("600519.SH"));
    QCOMPARE(m_table->index(0, SymbolColumn).data().toString(), QString("old"));
    // The clock's own end, as in the product.
    QTRY_VERIFY(!editor);
    QCOMPARE(m_table->index(0, SymbolColumn).data().toString(), QString("600519.SH"));
}

void tst_ZrSearchBoxCell::theCommitComesBeforeTheEnd()
{
    const QPointer<ZrSearchBox> editor = edit();
    QVERIFY(editor);
    QStringList told;
    connect(m_table->getZrTableItemDelegate(), &QAbstractItemDelegate::commitData, this,
            [&](QWidget *of) { told << (of == editor ? "commit" : "another"); });
    connect(m_table->getZrTableItemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [&](QWidget *of, QAbstractItemDelegate::EndEditHint hint) {
                told << (of == editor && hint == QAbstractItemDelegate::SubmitModelCache ? "close"
                                                                                         : "another");
            });
    connect(editor, &ZrSearchBox::selectStockCodeChange, this, [&] { told << "code"; });
    m_scene->type("600520");
    QTRY_COMPARE(told, QStringList({"code", "commit", "close"}));
}

void tst_ZrSearchBoxCell::aBoxOnAWidgetInACellCommits()
{
    auto *const holder = new QWidget;
    auto *const box = new ZrSearchBox(holder);
    m_table->setItemWidget(0, SymbolColumn, holder);
    box->setSecurityType(QString());
    QStringList told;
    connect(m_table->getZrTableItemDelegate(), &QAbstractItemDelegate::commitData, this,
            [&](const QWidget *of) { told << (of == box ? "commit" : "another"); });
    connect(m_table->getZrTableItemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [&](const QWidget *of) { told << (of == box ? "close" : "another"); });
    box->setText("600519");
    QCOMPARE(box->getSymbol(), QString("600519.SH"));
    QTRY_COMPARE(told, QStringList({"commit", "close"}));
    QVERIFY(m_table->indexWidget(0, SymbolColumn));
}

void tst_ZrSearchBoxCell::outsideATableNothingIsFinished()
{
    const QSignalSpy commits(m_table->getZrTableItemDelegate(), &QAbstractItemDelegate::commitData);
    m_scene->box()->setFocus();
    m_scene->type("600519");
    m_scene->ringPickTimer();
    QCOMPARE(commits.count(), 0);
    QCOMPARE(m_scene->box()->text(), QString("600519"));
}

ZR_TEST_MAIN(tst_ZrSearchBoxCell)
#include "tst_zrsearchboxcell.moc"
