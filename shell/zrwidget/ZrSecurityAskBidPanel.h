#pragma once

#include "ZrSecurityAskBidData.h"
#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class ZrSecurityAskBidPanelPrivate;

/// The order-book ladder of one security: sellers above, buyers below, the latest price in a band between.
///
///     卖 [2]      12.36      1200
///     卖 [1]      12.35       800
///     最新        12.34       300
///     买 [1]      12.34       500
///     买 [2]      12.33      2100
///
/// Shape:     painted by hand, without child widgets. The caller feeds levels, previous close and latest
///            price; colours, font size and margin come from the skin's sheet through the properties. A new
///            panel shows a full book without prices, with its first row selected.
///            A click reports when it is sure that no second one follows, ZrLadderClicks::waitMs later; keys
///            report at once.
/// Units:     rows from 0 at the top; counts in levels a side; sizes in logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none is reported. Counts beyond 1,000 levels a side are taken for 1,000 with a log line,
///            margins for one within 10,000 px; a margin that is no number is ignored.
/// Not supported: deleting the panel from a slot of its signals, use deleteLater(); a size of its own, which
///            the caller's layout gives.
class ZRWIDGET_EXPORT ZrSecurityAskBidPanel : public QWidget, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    Q_PROPERTY(QBrush brushColor READ brushColor WRITE setBrushColor)
    Q_PROPERTY(QColor panelBgColor READ panelBgColor WRITE setPanelBgColor)
    Q_PROPERTY(QColor upColor READ upColor WRITE setUpColor)
    Q_PROPERTY(QColor downColor READ downColor WRITE setDownColor)
    Q_PROPERTY(QColor lastPriceColor READ lastPriceColor WRITE setLastPriceColor)
    Q_PROPERTY(QColor buyColor READ buyColor WRITE setBuyColor)
    Q_PROPERTY(QColor sellColor READ sellColor WRITE setSellColor)
    Q_PROPERTY(int painterFont READ painterFont WRITE setPainterFont)
    Q_PROPERTY(double currentMargins READ currentMargins WRITE setCurrentMargins)
    Q_PROPERTY(bool showLastPrice READ showLastPrice WRITE setShowLastPrice)
    Q_PROPERTY(int dishShowType READ dishShowType WRITE setDishShowType)
public:
    explicit ZrSecurityAskBidPanel(QWidget *parent = nullptr);
    ~ZrSecurityAskBidPanel() override;

    // --- What the skin sets; the same value again does nothing ---
    /// Fill of the hovered cell and of the selected row.
    QBrush brushColor() const;
    void setBrushColor(const QBrush &brush);
    QColor panelBgColor() const;
    void setPanelBgColor(const QColor &color);
    /// Of prices above and below the previous close; equal ones and missing ones have the balance colour.
    QColor upColor() const;
    void setUpColor(const QColor &color);
    QColor downColor() const;
    void setDownColor(const QColor &color);
    /// Ground of the band; also the line in its place.
    QColor lastPriceColor() const;
    void setLastPriceColor(const QColor &color);
    /// Of the badges that the levels stand in.
    QColor buyColor() const;
    void setBuyColor(const QColor &color);
    QColor sellColor() const;
    void setSellColor(const QColor &color);
    /// Font size in px.
    int painterFont() const;
    void setPainterFont(int sizePx);
    /// Left of the texts, above the first row, and half of what the selected row is taller by. Rows keep
    /// their height until the next book or size.
    double currentMargins() const;
    void setCurrentMargins(double marginPx);
    /// The band, or a thin line in its place. Ignored while setLastPriceShowFlag() holds it.
    bool showLastPrice() const;
    void setShowLastPrice(bool shown);
    /// 1: levels as Chinese numerals.
    int dishShowType() const;
    void setDishShowType(int type);
    void loadSkin(const QVariant &css) override;

    // --- What the caller feeds ---
    /// Replaces the book. A price of zero or none is shown, and read back, as "—".
    void setCodeLastAskBidInfo(const ZrAskBidLevels &levels);
    /// As set; while five levels a side are shown, those that were not given stand in it as empty ones.
    ZrAskBidLevels getCodeLastAskBidInfo() const;
    void setCodePrevClose(double price);
    double getCodePrevClose() const;
    /// Only price and volumeText are taken over.
    void setLastPriceInfo(const ZrSecurityAskBidData &data);
    /// Repaints when the row exists. The book stays as it is: callers send a whole book right after, and what
    /// they say here may already be older than it.
    void updateBidAskPrice(int key, float price, int volume);

    // --- What is shown, and what is selected ---
    /// 10 or 5 levels a side; see ZrLadderBook for others. 0 is ignored. The selection stays.
    void setAskBidPricesCounts(int count);
    int getAskBidPricesCounts() const;
    /// Counts rows from 1; 0 and -1 select none.
    void setCurIndex(int row);
    /// Counts rows from 0; -1 for none.
    int getCurIndex() const;
    /// Down or up by a row, round and round, without a signal; nothing while no row is selected.
    void changeAskBidCurrentIndex(bool forward);
    /// Whether the selected row stands out, and the whole width of a row can be clicked.
    void setBarSelectable(bool selectable);
    /// Kept for callers that ask for it; the pointer is followed in any case.
    void setHoverable(bool hoverable);
    /// As setShowLastPrice().
    void setLastPriceShow(bool shown);
    /// 1: the band for good; 2: the line for good; else as setShowLastPrice() says.
    void setLastPriceShowFlag(int flag);
    /// Follows the pointer: the panel watches itself.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// The selected row. While none is selected: a price of "0".
    ZrSecurityAskBidData getCurrentPriceInfo();

signals:
    /// A row or the band was chosen. The band reports twice where rows can't be selected: at once and after
    /// the wait; forms that follow the price count on the first, those that follow clicks on the second.
    void signalCurrentPriceInfo(ZrSecurityAskBidData data);
    /// The first column was clicked.
    void signalCurrentClicked(ZrSecurityAskBidData data);
    /// A double click on the selected row; cmd is 10001.
    void signalPanelBarClicked(int cmd, ZrSecurityAskBidData data);

protected:
    void timerEvent(QTimerEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /// With a row that stands out.
    void drawPanel(QPainter *painter);
    /// All rows alike.
    void drawNormalPanel(QPainter *painter);

private:
    Q_DISABLE_COPY(ZrSecurityAskBidPanel)
    ZrSecurityAskBidPanelPrivate *const d; // owned
};
