#pragma once

#include "DialogScene.h"
#include "ZrDialog.h"
#include "ZrHeaderView.h"
#include "ZrTableView.h"
#include "ZrViewFilterWidget.h"

#include <QtCore/QPointer>

class QLineEdit;
class QTableView;

/// A grid of small columns in the main window, and a hand at its filter buttons.
///
/// Shape:     column 0 is the key ("k0", "k1"...), 1 a text of few values ("a", "b", "c" in turn), 2 a whole
///            number from 1, 3 a text without rows of its own. All have filter buttons.
/// Units:     logical px.
/// Ownership: the grid is the main window's; it may be deleted by a test.
class FilterScene
{
public:
    enum Column { Key, Text, Number, Unseen, ColumnCount };

    explicit FilterScene(int rows = 9, QWidget *place = nullptr);
    ~FilterScene();

    static void fill(ZrTableView *grid, int rows);
    static ItemRoleMap cell(const QVariant &value);
    static RecordData record(int row);

    /// Presses the button of a column with the mouse, and lets it go; in a head other than the main one too.
    void press(int column, ZrHeaderView *head = nullptr);
    static void pressIn(ZrHeaderView *head, int section);
    ZrHeaderView *head() const { return grid->getZrTableHorizontalHeader(); }
    /// Where the button of a column stands on the screen, once it was painted; null before.
    QRect buttonOf(int column) const;
    /// The popup and its parts; null while there is none.
    ZrDialog *popup() const;
    ZrViewFilterWidget *panel() const;
    ZrTableView *list() const;
    QLineEdit *search() const;
    bool isOpen() const { return popup() && popup()->isVisible(); }
    /// The texts of the list, the ticked ones with a star in front.
    QStringList listed() const;
    /// The key texts that the grid shows.
    QStringList shown() const;
    /// Clicks on a row of the list, on its check box or on its text.
    void clickBox(int row);
    void clickText(int row);

    DialogScene desk;
    QPointer<ZrTableView> grid;

private:
    void clickAt(int row, int viewColumn);
};
