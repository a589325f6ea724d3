#pragma once

#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPaintDevice>

#include <memory>

/// One thing that was painted, where it landed on the device.
struct PaintedThing
{
    QRectF rect; // of a filled shape, or from the start of a text to its end on the line that it stands on
    QBrush brush;
    bool hasPen = false;
    QString text; // empty for a shape
    QColor pen;
    QFont font;

    bool isText() const { return !text.isEmpty(); }
};

/// A device that notes what is painted on it, so that a test can compare numbers instead of pixels.
class PaintRecorder : public QPaintDevice
{
public:
    explicit PaintRecorder(const QSize &size);
    ~PaintRecorder() override;

    QList<PaintedThing> shapes() const;
    QList<PaintedThing> texts() const;
    /// The first of the texts.
    PaintedThing text(const QString &text) const;
    void clear();

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    const QSize m_size;
    const std::unique_ptr<Engine> m_engine;
};
