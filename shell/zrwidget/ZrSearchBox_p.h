#pragma once

#include "ZrSearchBox.h"
#include "ZrSymbolMatcher.h"

#include <QtCore/QObject>

class ZrCompleter;

/// What a ZrSearchBox knows and does: the lists, the pick and its clock, and what a key means.
///
/// Ownership: the box's; the completer is the box's child, and let go of here.
/// Threads:   GUI thread only.
class ZrSearchBoxPrivate : public QObjectData
{
public:
    explicit ZrSearchBoxPrivate(ZrSearchBox *box);
    ~ZrSearchBoxPrivate() override;

    QString securityType;
    QStringList securityList;  // candidates without their search keys
    QStringList searchKeyList; // search key + "&" + candidate
    QString symbol;            // the picked one, empty while nothing is picked
    int minMatchLength = 5;
    int maxFilterShowSize = 0;
    bool autoMatchWhenFocusOut = true;
    ZrCompleter *completer = nullptr; // the box's child
    int searchMode = ZrSymbolMatcher::StartsWith;
    int timerId = -1; // the clock between a pick and its signals; -1 is not running
    bool errorCodeMsgBoxOn = true;
    bool emitErrorAtFocusOut = false;
    bool searchAllWhenEmpty = true;
    int lastTextLength = 0;
    bool isErrorShown = false;

    void init(const QStringList &list);
    void loadSecurities();
    void applySearchMode();

    /// Lists what the text means, and picks it when it's the only one.
    void narrow(const QString &text);
    void openPopup();
    void hidePopup();
    bool isPopupVisible() const;
    /// The first row of the list, or an invalid index.
    QModelIndex firstRow() const;

    /// A row becomes the pick: its code is shown, its signals come later. The popup stays as it is.
    void pick(const QModelIndex &row);
    void pickAndClose(const QModelIndex &row);
    /// Shows the picked symbol's code without narrowing the list to it.
    void showSymbol();
    void startPickTimer();
    void stopPickTimer();

    // False when the base is not to see the key.
    bool takeKeyWithPopup(int key);
    bool takeKeyWithoutPopup(int key);
    /// A press outside the open popup.
    void turnAway();

private:
    void createCompleter();
    void listFirstRows();
    void pickOnlyRow(const QModelIndex &row, const QString &text);
    void takeCurrentRow(const QModelIndex &row);
    void refuse();

    ZrSearchBox *q() const { return static_cast<ZrSearchBox *>(q_ptr); }

    ZrSymbolMatcher m_matcher;
    bool m_isQuiet = false; // the text changes to that of the pick
};
