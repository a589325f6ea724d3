#pragma once

#include "ZrSecurityAskBidData.h"

#include <QtWidgets/QWidget>

class ZrQuotationLabel;
class ZrSearchBox;
class ZrSecurityAskBidPanel;
struct ZrDepthQuote;

/// One security's market: its name and latest price over its order-book ladder.
///
///     [search]  name
///     latest    change   in percent
///     ladder
///
/// Shape:     where ten levels a side would stand too close to be read, five are shown; what was selected
///            stays selected where it is still in sight.
/// Units:     logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a level without a price is not told of.
class ZrDepthPanel : public QWidget
{
    Q_OBJECT
public:
    explicit ZrDepthPanel(QWidget *parent = nullptr);

    /// A new security: what was shown of the last one goes. Emits nothing.
    void showSecurity(const QString &symbol);
    void showQuote(const ZrDepthQuote &quote);

    ZrSearchBox *search() const { return m_search; }
    ZrSecurityAskBidPanel *ladder() const { return m_ladder; }

signals:
    /// The user found one by the search box.
    void signalSecurityChosen(const QString &symbol);
    /// By pointer or keyboard in the ladder.
    void signalLevelChosen(const ZrSecurityAskBidData &level);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    ZrQuotationLabel *addLabel(const char *name, const QString &accessibleName);
    void createLayout();
    void connectParts();
    void fitLevels();
    int leastHeightPx(int levels) const;
    void tellLevel(const ZrSecurityAskBidData &level);

    ZrSearchBox *m_search;
    ZrQuotationLabel *m_name;
    ZrQuotationLabel *m_last;
    ZrQuotationLabel *m_change;
    ZrQuotationLabel *m_percent;
    ZrSecurityAskBidPanel *m_ladder;
};
