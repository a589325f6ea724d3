#pragma once

#include "ZrSecurityAskBidPanel.h"
#include "ZrTestMain.h"

#include <memory>

/// A window with a ladder on it, as its user finds it: 400 by 600 px, a full book, no selection changed yet.
///
/// Rows are 27 px high and columns 114 px wide; the margin is 12 px, unless it is left to the skin.
class LadderScene
{
public:
    static constexpr int widthPx = 400;
    static constexpr int heightPx = 600;
    static constexpr int rowPx = 27;
    static constexpr int columnPx = 114;
    static constexpr int marginPx = 12;

    enum Margins { Fixed, OfTheSkin };

    explicit LadderScene(Margins margins = Fixed);
    ~LadderScene();

    ZrSecurityAskBidPanel *panel() const { return m_panel; }

    /// Sellers from 20.10 down to 20.01, buyers from 20.00 down to 19.91; quantities 100 times the row and 7.
    static ZrAskBidLevels book();
    static ZrSecurityAskBidData last();

    // Events as the user's, without the waits between them.
    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &at);
    void doubleClick(const QPoint &at, Qt::MouseButton button = Qt::LeftButton);
    void hover(const QPoint &at);
    void leave();

    /// How long the panel's clock was set for, in ms; 0 when it does not run.
    int waitMs() const;
    Qt::TimerType waitType() const;
    /// Lets the time of the panel's clock be over. False when it does not run.
    bool ring();

private:
    std::unique_ptr<QWidget> m_window;
    ZrSecurityAskBidPanel *const m_panel; // the window's
};

/// What a ladder reported, as one text in the order of the reports: "price 20.01", "level 20.01",
/// "bar 10001 20.01".
class LadderReports : public QObject
{
    Q_OBJECT
public:
    explicit LadderReports(const ZrSecurityAskBidPanel *panel);

    /// And forgets it.
    QString take();
    ZrSecurityAskBidData lastData() const { return m_last; }

private:
    void note(const QString &what, const ZrSecurityAskBidData &data);

    QStringList m_reports;
    ZrSecurityAskBidData m_last;
};
