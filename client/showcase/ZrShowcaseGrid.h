#pragma once

#include <QtWidgets/QLayout>

/// Lays widgets out on columns of one width, line after line.
///
/// Shape:     a widget takes as many columns as its width needs, two at least; the next line begins where the
/// width ends.
///            All widgets of a line begin at the same height.
/// Units:     sizes in logical px.
/// Ownership: normal QLayout rules.
/// Threads:   GUI thread only.
class ZrShowcaseGrid : public QLayout
{
public:
    static constexpr int GapPx = 16;
    static constexpr int StepPx = 96;                  // a column and its gap
    static constexpr int LeastPx = 2 * StepPx - GapPx; // of a widget: two columns

    explicit ZrShowcaseGrid(QWidget *parent);
    ~ZrShowcaseGrid() override;

    void addItem(QLayoutItem *item) override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    int count() const override { return m_items.size(); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Height of all lines; places the items when `place` is true.
    int layOut(const QRect &rect, bool place) const;

    QList<QLayoutItem *> m_items;
};
