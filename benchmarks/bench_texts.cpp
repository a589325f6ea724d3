// A text of 100 kB without a blank, as a counterparty may send it: from the call to the painted window.
#include "FreezeTableView.h"
#include "ZrBench.h"
#include "ZrLogWidget.h"
#include "ZrMessageBox.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"
#include "ZrToastDialog.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTableView>

namespace {
constexpr int TextSize = 100 * 1024;
constexpr double BoundMs = 20; // a trader's hand waits for no message
constexpr QSize RoomPx(900, 600);

using Maker = std::function<QWidget *(const QString &text, QWidget *parent)>;

const QString &longText()
{
    static const QString text(TextSize, QLatin1Char('W'));
    return text;
}

double shownMs(const Maker &make)
{
    QWidget window;
    window.resize(RoomPx);
    return 1000 * secondsOf([&] {
               QWidget *const widget = make(longText(), &window);
               widget->show();
               widget->grab();
           });
}

QWidget *messageBox(const QString &text, QWidget *parent)
{
    return new ZrMessageBox(text, text, 3, parent, 0);
}

QWidget *peerMessageBox(const QString &text, QWidget *parent)
{
    auto *const box = new QMessageBox(parent);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(text);
    box->setText(text);
    return box;
}

QWidget *toast(const QString &text, QWidget *parent)
{
    auto *const dialog = new ZrToastDialog(parent);
    dialog->ShowToastMessage(text, ZrToastDialog::LevelError);
    return dialog;
}

QWidget *peerToast(const QString &text, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

QWidget *logWidget(const QString &text, QWidget *parent)
{
    auto *const log = new ZrLogWidget(parent);
    log->showLog(true);
    log->appendLog(text);
    return log;
}

QWidget *peerLog(const QString &text, QWidget *parent)
{
    auto *const log = new QPlainTextEdit(parent);
    log->appendPlainText(text);
    return log;
}

QWidget *grid(const QString &text, QWidget *parent)
{
    auto *const view = new ZrTableView(parent);
    HeadList heads{{{HEAD_DISPLAYROLE, text}}};
    view->setHeadList(heads);
    view->addRecordDataList({{{0, {{ITEM_DISPLAYROLE, text}}}}});
    return view;
}

QWidget *peerGrid(const QString &text, QWidget *parent)
{
    auto *const view = new QTableView(parent);
    auto *const model = new QStandardItemModel(view);
    model->appendRow(new QStandardItem(text));
    model->setHorizontalHeaderLabels({text});
    view->setModel(model);
    return view;
}

ZrBenchCase textCase(const QString &name, const QString &peerName, const Maker &ours, const Maker &peer)
{
    const ZrBenchRow row = {
        name, "ms", false, peerName, QStringLiteral("the bound of 20 ms"), ZrBenchRow::None, 1};
    return {row, [=] {
                return ZrBenchSides{[=] { return shownMs(ours); }, [=] { return shownMs(peer); },
                                    [] { return BoundMs; }};
            }};
}
} // namespace

ZrBenchCases textBenches()
{
    return {textCase("text/message_100k", "QMessageBox", messageBox, peerMessageBox),
            textCase("text/toast_100k", "QLabel, wrapped", toast, peerToast),
            textCase("text/log_100k", "QPlainTextEdit", logWidget, peerLog),
            textCase("text/grid_100k", "QStandardItemModel, QTableView", grid, peerGrid)};
}
