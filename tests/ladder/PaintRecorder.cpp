#include "PaintRecorder.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainterPath>

#include <algorithm>

class PaintRecorder::Engine : public QPaintEngine
{
public:
    Engine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }
    QList<PaintedThing> things;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState &changed) override
    {
        const DirtyFlags flags = changed.state();
        if (flags.testFlag(DirtyPen))
            m_pen = changed.pen();
        if (flags.testFlag(DirtyBrush))
            m_brush = changed.brush();
        if (flags.testFlag(DirtyTransform))
            m_transform = changed.transform();
    }

    void drawPath(const QPainterPath &path) override { note(path.boundingRect()); }
    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            note(rects[i]);
    }
    void drawRects(const QRect *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            note(rects[i]);
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &start, const QTextItem &item) override
    {
        if (item.text().trimmed().isEmpty())
            return; // a blank behind a word is an item of its own where another font has the word
        const QRectF line(start.x(), start.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        things.append({m_transform.mapRect(line), m_brush, m_pen.style() != Qt::NoPen, item.text(),
                       m_pen.color(), item.font()});
    }

private:
    void note(const QRectF &rect)
    {
        things.append({m_transform.mapRect(rect), m_brush, m_pen.style() != Qt::NoPen, QString(),
                       m_pen.color(), QFont()});
    }

    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
};

PaintRecorder::PaintRecorder(const QSize &size)
    : m_size(size)
    , m_engine(std::make_unique<Engine>())
{
}

PaintRecorder::~PaintRecorder() = default;

QList<PaintedThing> PaintRecorder::shapes() const
{
    QList<PaintedThing> found;
    std::copy_if(m_engine->things.cbegin(), m_engine->things.cend(), std::back_inserter(found),
                 [](const PaintedThing &thing) { return !thing.isText(); });
    return found;
}

QList<PaintedThing> PaintRecorder::texts() const
{
    QList<PaintedThing> found;
    std::copy_if(m_engine->things.cbegin(), m_engine->things.cend(), std::back_inserter(found),
                 [](const PaintedThing &thing) { return thing.isText(); });
    return found;
}

PaintedThing PaintRecorder::text(const QString &text) const
{
    for (const PaintedThing &thing : qAsConst(m_engine->things)) {
        if (thing.text.trimmed() == text)
            return thing;
    }
    return PaintedThing();
}

void PaintRecorder::clear()
{
    m_engine->things.clear();
}

QPaintEngine *PaintRecorder::paintEngine() const
{
    return m_engine.get();
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    constexpr int dpi = 96;
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dpi;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    default:
        return QPaintDevice::metric(metric);
    }
}
