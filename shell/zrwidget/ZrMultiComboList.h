#pragma once

#include "ZrTickedTexts.h"
#include "zrwidget_global.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QListWidget>

class CheckBoxInMultiBox;

/// The popup of a ZrMultiComboBox: a list with a check box in each row, at home with thousands of rows.
///
/// Shape:     every row has its check box from the start, as its item widget. Only those in sight are placed
///            and shown: opening and scrolling cost what the window shows, not what the list holds.
/// Units:     rows from 0.
/// Ownership: normal QWidget parent rules; rows own their items, the list their check boxes.
/// Threads:   GUI thread only.
/// Errors:    a row out of range, or one without a check box, gives null, -1 or nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrMultiComboList : public QListWidget
{
    Q_OBJECT
public:
    using Row = QPair<QString, QVariant>; // text and data

    explicit ZrMultiComboList(QWidget *parent = nullptr);

    /// Rows as the style sheet says and a scroll bar: to be called after a combo box, which sets up its view
    /// for a menu, has taken the list and got its editor.
    void takeOwnLook();
    /// Appends the rows and gives their check boxes, in their order.
    QVector<CheckBoxInMultiBox *> addRows(const QVector<Row> &rows);
    CheckBoxInMultiBox *boxAt(int row) const;
    /// The row of a check box, -1 for anything else.
    int rowOf(const QObject *box) const;
    QList<int> tickedRows() const;
    /// The texts of the ticked rows, in the order of rows, in one pass.
    QStringList tickedTexts() const;
    /// The same texts joined, and how many they are.
    ZrTickedTexts::Joined joinedTicks(QChar separator) const;
    QString textAt(int row) const;
    /// Toggles the current row as a click on it does.
    void clickCurrent();

    /// Moves to the next row whose text begins so; the rows have no text that the base could search.
    void keyboardSearch(const QString &search) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent *event) override;

protected slots:
    void updateEditorGeometries() override;

private:
    void listenToRows();
    int firstRowInSight() const;
    int rowThatBegins(const QString &text, int from) const;

    mutable ZrTickedTexts m_texts;        // of all rows, while m_areTextsKnown
    mutable bool m_areTextsKnown = false; // until a row comes, goes, moves or changes
    QVector<QPointer<QWidget>> m_inSight; // item widgets that are shown
    QString m_searched;                   // what was typed so far
    QElapsedTimer m_sinceTyped;
};
