#pragma once

#include "zrwidget_global.h"

#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>

#include <memory>

class QModelIndex;
class ZrSearchBoxPrivate;

/// A one-line editor that finds a security: a few letters or digits of its code or search key narrow a list
/// under the field, and the only candidate left is picked without a key press.
///
/// Shape:     the field shows the short code ("600519"), getSymbol() is the whole symbol ("600519.SH"), empty
///            while nothing is picked. Securities are the host's, of setSecurityType(), or a list of the
///            caller's in the host's form; without either, those of all types are asked for at the first key.
///            In a cell of a ZrTableView a pick finishes the edit.
///
///                empty --key--> editing --Return, click, only one left--> picked --key--> editing
///
/// Units:     lengths in characters; the signals of a pick come 250 ms after it, so that a quick second pick
///            takes the first one's place.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only. The host's answers are waited for.
/// Errors:    an unknown code stays selected in the field and raises signalErrorCode(), which shows a message
///            unless setErrorCodeMsgBoxOn(false). Characters that no code has are refused by the validator.
/// Not supported: setCompleter().
class ZRWIDGET_EXPORT ZrSearchBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit ZrSearchBox(QWidget *parent = nullptr);
    ~ZrSearchBox() override;

    /// Takes the host's securities of this type; an empty one means all.
    void setSecurityType(QString type);
    /// Each entry has the form of ZrSymbolText. The result is 0.
    int setSecurityList(const QStringList &list);

    /// Shows a symbol without any signal of a pick.
    void setSymbol(QString symbol);
    QString getSymbol() const;

    /// 1 finds what starts with the text, 2 what contains it; any other mode finds nothing.
    void setSearchMode(int mode);
    /// From this length on the only candidate is picked by itself; 6 at first.
    void setMinMatchLength(int length);
    /// The most rows in the list; below 1 means all. 100 at first.
    void setMaxFilterShowSize(int rows);
    /// Whether a press outside the open list picks its current or first row. True at first; otherwise the
    /// field goes back to the symbol that it has.
    void setAutoMatchWhenFocusOut(bool match);
    /// Whether signalErrorCode() also comes when the focus leaves a text that is no security.
    void setEmitErrorAtFocusOut(bool emitError);
    void setErrorCodeMsgBoxOn(bool on);
    /// Whether a box without securities asks for those of its type at a key press.
    void setSearchAllWhenEmpty(bool search);

    /// Opens or hides the list as it is.
    void popCompleter(bool pop);
    bool listViewVisiable() const;

signals:
    /// The name of the picked security.
    void selectStockNameChange(QString name);
    /// The text of the field, that is the short code; follows the name.
    void selectStockCodeChange(QString code);
    /// The picked symbol is no longer in the field.
    void signalStockCodeClear();
    void signalErrorCode();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private slots:
    void slotSetCompleter(const QString &text);
    void slotCompleteText(const QModelIndex &index);
    void completerFocusOutEvent();
    void slotErrorCode();

private:
    void finishCellEdit();

    Q_DISABLE_COPY(ZrSearchBox)
    const std::unique_ptr<ZrSearchBoxPrivate> m_own; // the base has a d of its own
    Q_DECLARE_PRIVATE_D(m_own, ZrSearchBox)
};
