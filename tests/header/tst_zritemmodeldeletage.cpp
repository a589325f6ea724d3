#include "HeadScene.h"
#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"
#include "ZrTestMain.h"
#include "ZrTristateRows.h"

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QSpinBox>

/// Stands for the tree's model.
class TristateModel : public QStandardItemModel, public ZrTristateRows
{
    Q_OBJECT
    Q_INTERFACES(ZrTristateRows)
};

class tst_ZrItemModelDeletage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void aNewDelegateHasTheStatedSettings();
    void settersStore();
    void aMarginKeepsTheSelectionsBackground();
    void aMarginMovesAndCutsTheText();
    void noFocusFrameIsPainted();
    void theTablesCheckBoxShowsTheRowsState_data();
    void theTablesCheckBoxShowsTheRowsState();
    void theTreesCheckBoxStandsFurtherRight_data();
    void theTreesCheckBoxStandsFurtherRight();
    void anotherModelHasNoCheckBox();
    void aCheckedRowIsHighlighted();
    void linesStandWhereTheStyleSays_data();
    void linesStandWhereTheStyleSays();
    void theGridFollowsItsColour();
    void thePainterKeepsItsPen();
    void itOffersNoEditor();
    void anEditorIsCentredAtItsOwnSize();
    void textIsCutToItsRect();

private:
    QImage paint(const QModelIndex &index, QStyle::State state = QStyle::State_Enabled) const;
    ZrTableModel *tableModel(const ItemRoleMap &stateCell, const QString &text = QString());

    static const QRect cell;
    SkinFolder m_skin;
    std::unique_ptr<ZrItemModelDeletage> m_delegate;
    std::unique_ptr<QWidget> m_widget;
};

const QRect tst_ZrItemModelDeletage::cell(10, 5, 60, 24);

void tst_ZrItemModelDeletage::initTestCase()
{
    QVERIFY(m_skin.isReady());
}

void tst_ZrItemModelDeletage::init()
{
    m_widget = std::make_unique<QWidget>();
    m_delegate = std::make_unique<ZrItemModelDeletage>();
    m_delegate->setcheckPath(QUrl("img/check.png"));
    m_delegate->setUncheckPath(QUrl("img/uncheck.png"));
    m_delegate->setTristatePath(QUrl("img/tristate.png"));
}

QImage tst_ZrItemModelDeletage::paint(const QModelIndex &index, QStyle::State state) const
{
    QImage target(80, 40, QImage::Format_ARGB32);
    target.fill(Qt::white);
    QPainter painter(&target);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = state;
    option.widget = m_widget.get();
    option.showDecorationSelected = true; // as in a view that selects rows
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.palette.setColor(QPalette::Highlight, Qt::blue);
    m_delegate->paint(&painter, option, index);
    painter.end();
    return target;
}

ZrTableModel *tst_ZrItemModelDeletage::tableModel(const ItemRoleMap &stateCell, const QString &text)
{
    // The model sets the widths of the table that is its parent.
    auto *const model = new ZrTableModel(new QTableView(m_widget.get()));
    model->setHeaderData(HeadList{{{HEAD_COLUMNINDEX, 0}, {HEAD_DISPLAYROLE, "c0"}}});
    model->setCheckBoxShow(true);
    RecordData row;
    row[0] = {{ITEM_DISPLAYROLE, text}, {ITEM_USERROLE, text}};
    row[ZrRowStateColumn] = stateCell;
    model->addRecordData(row);
    return model;
}

void tst_ZrItemModelDeletage::aNewDelegateHasTheStatedSettings()
{
    const ZrItemModelDeletage fresh;
    const ZrItemModelDeletagePrivate &fields = *fresh.getDelegatePrivate();
    QCOMPARE(fields.delegate, &fresh);
    QCOMPARE(fields.gridColor, QColor(40, 40, 40, 255));
    QVERIFY(!fields.checkBoxShown && fields.itemGridShown && !fields.summaryMode &&
            !fields.checkedRowHighlight);
    QCOMPARE(fresh.gridLineStyle(), 1);
    QCOMPARE(fields.columnXMargin, 0);
    QVERIFY(fields.checkPath.isEmpty() && !fields.checkedColor.isValid() && fields.list.isEmpty());
}

void tst_ZrItemModelDeletage::settersStore()
{
    m_delegate->setGridLineStyle(3);
    QCOMPARE(m_delegate->gridLineStyle(), 3);
    QCOMPARE(m_delegate->getItemRectWithMargin(cell), cell);
    m_delegate->setColumnDefaultXMargin(4);
    QCOMPARE(m_delegate->getItemRectWithMargin(cell), QRect(14, 5, 52, 24));
    m_delegate->SetCheckedRowHighlight(true, Qt::red);
    QVERIFY(m_delegate->getDelegatePrivate()->checkedRowHighlight);
    QCOMPARE(m_delegate->getDelegatePrivate()->checkedColor, QColor(Qt::red));
    m_delegate->slotIndex(1);
}

void tst_ZrItemModelDeletage::aMarginKeepsTheSelectionsBackground()
{
    const QModelIndex index = tableModel({})->index(0, 1); // a cell with no text
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_Active;
    const QImage plain = paint(index, selected);
    m_delegate->setColumnDefaultXMargin(4);
    QCOMPARE(paint(index, selected), plain);
    QVERIFY(plain.pixelColor(12, 12) != QColor(Qt::white));
}

void tst_ZrItemModelDeletage::aMarginMovesAndCutsTheText()
{
    const QModelIndex index = tableModel({}, "MMMMMMMMMMMMMMMMMMMM")->index(0, 1);
    m_delegate->setItemGridShow(false);
    m_delegate->setColumnDefaultXMargin(20);
    const QImage shot = paint(index);
    bool inside = false;
    for (int x = 0; x < shot.width(); ++x) {
        for (int y = 0; y < shot.height(); ++y) {
            const bool painted = shot.pixelColor(x, y) != QColor(Qt::white);
            QVERIFY2(!painted || (x >= 30 && x < 50), qPrintable(QString::number(x)));
            inside = inside || painted;
        }
    }
    QVERIFY(inside);
}

void tst_ZrItemModelDeletage::noFocusFrameIsPainted()
{
    const QModelIndex index = tableModel({})->index(0, 1);
    const QStyle::State state = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
    QCOMPARE(paint(index, state | QStyle::State_HasFocus), paint(index, state));
}

void tst_ZrItemModelDeletage::theTablesCheckBoxShowsTheRowsState_data()
{
    QTest::addColumn<ItemRoleMap>("stateCell");
    QTest::addColumn<QColor>("expected"); // invalid: no box

    QTest::newRow("no state") << ItemRoleMap{} << SkinFolder::uncheck;
    QTest::newRow("checked by a bool") << ItemRoleMap{{ITEM_USERROLE, true}} << SkinFolder::check;
    QTest::newRow("checked by the head") << ItemRoleMap{{ITEM_USERROLE, 2}} << SkinFolder::check;
    QTest::newRow("unchecked") << ItemRoleMap{{ITEM_USERROLE, 0}} << SkinFolder::uncheck;
    QTest::newRow("no box wanted") << ItemRoleMap{{ITEM_USERROLE, true}, {ITEM_CUSTOMROLE, true}} << QColor();
    QTest::newRow("box wanted") << ItemRoleMap{{ITEM_USERROLE, true}, {ITEM_CUSTOMROLE, false}}
                                << SkinFolder::check;
    QTest::newRow("disabled looks the same")
        << ItemRoleMap{{ITEM_USERROLE, true}, {ITEM_CHECKENABLEDROLE, false}} << SkinFolder::check;
}

void tst_ZrItemModelDeletage::theTablesCheckBoxShowsTheRowsState()
{
    QFETCH(ItemRoleMap, stateCell);
    QFETCH(QColor, expected);
    const ZrTableModel *const model = tableModel(stateCell);
    m_delegate->setItemGridShow(false);
    const QImage without = paint(model->index(0, 0));
    m_delegate->setCheckBoxShow(true);
    const QImage shot = paint(model->index(0, 0));
    if (!expected.isValid()) {
        QCOMPARE(shot, without);
        return;
    }
    // 16 by 16, centred in 60 by 24 at 10, 5
    QCOMPARE(shot.pixelColor(32, 9), expected);
    QCOMPARE(shot.pixelColor(47, 24), expected);
    QVERIFY(shot.pixelColor(31, 9) != expected && shot.pixelColor(48, 24) != expected);
    QVERIFY(shot.pixelColor(32, 8) != expected && shot.pixelColor(47, 25) != expected);
    QCOMPARE(paint(model->index(0, 1)), without); // column 0 only
}

void tst_ZrItemModelDeletage::theTreesCheckBoxStandsFurtherRight_data()
{
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("unchecked") << QVariant(0) << false << SkinFolder::uncheck;
    QTest::newRow("partly") << QVariant(1) << false << SkinFolder::tristate;
    QTest::newRow("checked") << QVariant(2) << false << SkinFolder::check;
    QTest::newRow("unknown") << QVariant(3) << false << QColor();
    QTest::newRow("no box wanted") << QVariant(2) << true << QColor();
}

void tst_ZrItemModelDeletage::theTreesCheckBoxStandsFurtherRight()
{
    QFETCH(QVariant, state);
    QFETCH(bool, hidden);
    QFETCH(QColor, expected);
    TristateModel model;
    auto *const item = new QStandardItem;
    item->setData(state, ZrRawRole);
    item->setData(hidden, ZrSecondRawRole);
    model.appendRow(item);
    m_delegate->setItemGridShow(false);
    const QImage without = paint(item->index());
    m_delegate->setCheckBoxShow(true);
    const QImage shot = paint(item->index());
    if (!expected.isValid()) {
        QCOMPARE(shot, without);
        return;
    }
    QCOMPARE(shot.pixelColor(37, 9), expected);
    QCOMPARE(shot.pixelColor(52, 24), expected);
    QVERIFY(shot.pixelColor(36, 9) != expected && shot.pixelColor(53, 24) != expected);
}

void tst_ZrItemModelDeletage::anotherModelHasNoCheckBox()
{
    QStandardItemModel model(1, 1);
    const QImage without = paint(model.index(0, 0));
    m_delegate->setCheckBoxShow(true);
    QCOMPARE(paint(model.index(0, 0)), without);
}

void tst_ZrItemModelDeletage::aCheckedRowIsHighlighted()
{
    const ZrTableModel *const checked = tableModel({{ITEM_USERROLE, true}});
    const ZrTableModel *const unchecked = tableModel({{ITEM_USERROLE, false}});
    m_delegate->SetCheckedRowHighlight(true, Qt::red);
    // Not without the check box.
    QVERIFY(paint(checked->index(0, 1)).pixelColor(12, 12) != QColor(Qt::red));
    m_delegate->setCheckBoxShow(true);
    const QImage shot = paint(checked->index(0, 1)); // every column
    QCOMPARE(shot.pixelColor(10, 5), QColor(Qt::red));
    QCOMPARE(shot.pixelColor(69, 27), QColor(Qt::red)); // the line lies over the last row of pixels
    QVERIFY(shot.pixelColor(9, 12) != QColor(Qt::red) && shot.pixelColor(70, 12) != QColor(Qt::red));
    QVERIFY(paint(unchecked->index(0, 1)).pixelColor(12, 12) != QColor(Qt::red));
    m_delegate->SetCheckedRowHighlight(true, QColor());
    QVERIFY(paint(checked->index(0, 1)).pixelColor(12, 12) != QColor(Qt::red));
    m_delegate->SetCheckedRowHighlight(false, Qt::red);
    QVERIFY(paint(checked->index(0, 1)).pixelColor(12, 12) != QColor(Qt::red));
}

void tst_ZrItemModelDeletage::linesStandWhereTheStyleSays_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("summary");
    QTest::addColumn<bool>("top");
    QTest::addColumn<bool>("bottom");
    QTest::addColumn<bool>("left");

    QTest::newRow("horizontal") << 1 << true << false << false << true << false;
    QTest::newRow("vertical") << 2 << true << false << false << false << true;
    QTest::newRow("both") << 3 << true << false << false << true << true;
    QTest::newRow("neither") << 0 << true << false << false << false << false;
    QTest::newRow("hidden") << 3 << false << false << false << false << false;
    QTest::newRow("summary, horizontal") << 1 << true << true << true << false << false;
    QTest::newRow("summary, both") << 3 << true << true << true << false << true;
    QTest::newRow("summary, vertical") << 2 << true << true << false << false << true;
}

void tst_ZrItemModelDeletage::linesStandWhereTheStyleSays()
{
    QFETCH(int, style);
    QFETCH(bool, shown);
    QFETCH(bool, summary);
    m_delegate->setItemGridColor(Qt::red);
    m_delegate->setGridLineStyle(style);
    m_delegate->setItemGridShow(shown);
    m_delegate->getDelegatePrivate()->summaryMode = summary;
    const QImage shot = paint(tableModel({})->index(0, 1));
    const auto isLine = [&shot](int x, int y) { return shot.pixelColor(x, y) == QColor(Qt::red); };
    QTEST(isLine(40, 5), "top");
    QTEST(isLine(40, 28), "bottom");
    QTEST(isLine(10, 15), "left");
    QVERIFY(!isLine(69, 15) && !isLine(40, 15) && !isLine(40, 29) && !isLine(40, 4) && !isLine(9, 15));
    QCOMPARE(isLine(69, 28), isLine(40, 28)); // to the last pixel
}

void tst_ZrItemModelDeletage::theGridFollowsItsColour()
{
    const QModelIndex index = tableModel({})->index(0, 1);
    QCOMPARE(paint(index).pixelColor(40, 28), QColor(40, 40, 40));
    m_delegate->getDelegatePrivate()->gridColor = Qt::green; // a sibling writes the field
    QCOMPARE(paint(index).pixelColor(40, 28), QColor(Qt::green));
}

void tst_ZrItemModelDeletage::thePainterKeepsItsPen()
{
    QImage target(80, 40, QImage::Format_ARGB32);
    QPainter painter(&target);
    const QPen pen(Qt::magenta, 3);
    painter.setPen(pen);
    QStyleOptionViewItem option;
    option.rect = cell;
    m_delegate->setColumnDefaultXMargin(4);
    m_delegate->paint(&painter, option, tableModel({}, "text")->index(0, 1)); // and without a widget
    QCOMPARE(painter.pen(), pen);
}

void tst_ZrItemModelDeletage::itOffersNoEditor()
{
    QTest::ignoreMessage(QtDebugMsg, "ZrItemModelDeletage::createEditor");
    ZrTableModel *const model = tableModel({}, "text");
    QVERIFY(!m_delegate->createEditor(m_widget.get(), QStyleOptionViewItem(), model->index(0, 1)));
    QSpinBox box;
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    m_delegate->setEditorData(&box, model->index(0, 1));
    m_delegate->setModelData(&box, model, model->index(0, 1));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(box.value(), 0);
}

void tst_ZrItemModelDeletage::anEditorIsCentredAtItsOwnSize()
{
    QStyleOptionViewItem option;
    option.rect = QRect(100, 50, 80, 30);
    QWidget fixed;
    fixed.setFixedSize(20, 10);
    m_delegate->updateEditorGeometry(&fixed, option, QModelIndex());
    QCOMPARE(fixed.size(), QSize(20, 10));
    QCOMPARE(fixed.geometry().center(), option.rect.center());
    QWidget free;
    m_delegate->updateEditorGeometry(&free, option, QModelIndex());
    QCOMPARE(free.geometry(), option.rect);
    m_delegate->updateEditorGeometry(nullptr, option, QModelIndex());
}

void tst_ZrItemModelDeletage::textIsCutToItsRect()
{
    QImage target(200, 30, QImage::Format_ARGB32);
    target.fill(Qt::white);
    QPainter painter(&target);
    const QString text("MMMMMMMMMMMMMMMMMMMMMMMMMMMM");
    m_delegate->drawMetricsText(&painter, QRect(0, 0, 60, 30), Qt::AlignLeft | Qt::AlignVCenter, text);
    painter.end();
    QImage expected(200, 30, QImage::Format_ARGB32);
    expected.fill(Qt::white);
    QPainter second(&expected);
    second.drawText(QRect(0, 0, 60, 30), Qt::AlignLeft | Qt::AlignVCenter,
                    QFontMetrics(second.font()).elidedText(text, Qt::ElideRight, 60));
    second.end();
    QCOMPARE(target, expected);
}

ZR_TEST_MAIN(tst_ZrItemModelDeletage)
#include "tst_zritemmodeldeletage.moc"
