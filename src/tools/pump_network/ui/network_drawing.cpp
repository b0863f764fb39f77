#include "tools/pump_network/ui/network_drawing.h"

#include "forms/ui/accessible_names.h"
#include "forms/ui/form_view.h"
#include "tools/pump_network/model/pump_network_model.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace kestrova {

using namespace pump_network;

namespace {

constexpr double kTwipsPerPixel = 15; // the canvas at its own scale
const QColor kPipe(40, 60, 100);
const QColor kLiquid(120, 170, 230);
const QColor kValve(200, 40, 40);

QString lineCaption(int line)
{
    return line == 3 ? QString("Line 3, back to the source") : QString("Line %1").arg(line);
}

// What a screen reader calls a field of the drawing: its caption and the
// line it belongs to ("Flow, line 8"), since every terminal line's box and
// every valve has the same captions.
QString spokenPlace(const FieldPlace& place)
{
    const QString caption = spokenCaption(place.caption);
    const int field = place.field;
    const int line = field < SourceHeight                            ? kTerminals[static_cast<size_t>(field / 3)]
                     : field >= Valve5Drop && field <= Valve3Drop ? kTerminals[static_cast<size_t>(field - Valve5Drop)]
                                                                   : 0;
    return line ? QString("%1, line %2").arg(caption).arg(line) : caption;
}

} // namespace

NetworkDrawing::NetworkDrawing(PumpNetworkModel& model, FormView& view, QWidget* parent)
    : QWidget(parent), model_(model), view_(view)
{
    setObjectName(QString::fromStdString(panNetwork.name()));
    setMouseTracking(true);
    setAutoFillBackground(true);
    QPalette ground = palette();
    ground.setColor(QPalette::Window, palette().color(QPalette::Base));
    setPalette(ground);
    const QFontMetrics metrics(font());
    int destinationCaptions = 0;
    for (const char* caption : {"Flow:", "Pressure:", "Height:"})
        destinationCaptions = std::max(destinationCaptions, metrics.horizontalAdvance(caption) + 6);
    for (const FieldPlace& place : fieldPlaces()) {
        auto* caption = new QLabel(place.caption, this);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QLineEdit* edit = view_.field(txtData(place.field));
        QComboBox* units = view_.unitList(cboUnits(place.field), PumpNetworkModel::unitTagOf(place.field));
        edit->setParent(this);
        units->setParent(this);
        caption->setBuddy(edit);
        edit->setAccessibleName(spokenPlace(place));
        units->setAccessibleName(spokenPlace(place) + " units");
        const int terminal = place.field < SourceHeight ? place.field / 3 : -1;
        const int line = terminal >= 0 ? kTerminals[static_cast<size_t>(terminal)] : 0;
        const int captionWidth =
            line ? destinationCaptions : metrics.horizontalAdvance(QString(place.caption)) + 6;
        rows_.push_back({&place, caption, edit, units, captionWidth, line});
    }
}

// The canvas at its own scale, or more where a row of fields reaches beyond
// it. Measured once per size of the pane: the drawing asks for it at every stroke.
QSize NetworkDrawing::minimumSizeHint() const
{
    if (least_.isValid())
        return least_;
    QSize least(static_cast<int>(kCanvasWidth / kTwipsPerPixel), static_cast<int>(kCanvasHeight / kTwipsPerPixel));
    for (const FieldRow& row : rows_) {
        const QRect extent = rowExtent(row, row.place->at.x / kTwipsPerPixel, row.place->at.y / kTwipsPerPixel);
        least = least.expandedTo(QSize(extent.right() + 8, extent.bottom() + 8));
    }
    least_ = least;
    return least;
}

void NetworkDrawing::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        least_ = QSize();
    QWidget::changeEvent(event);
}

// The canvas fills the pane as far as it can without changing its shape;
// below its own size the pane scrolls, so that the fields never overlap.
double NetworkDrawing::scale() const
{
    const QSize least = minimumSizeHint();
    return std::max(1.0, std::min(double(width()) / least.width(), double(height()) / least.height()));
}

QPointF NetworkDrawing::origin() const
{
    const QSizeF drawn = QSizeF(minimumSizeHint()) * scale();
    return {std::max(0.0, (width() - drawn.width()) / 2), std::max(0.0, (height() - drawn.height()) / 2)};
}

QPointF NetworkDrawing::canvasToWidget(double x, double y) const
{
    return origin() + QPointF(x, y) * (scale() / kTwipsPerPixel);
}

QPointF NetworkDrawing::toCanvas(const QPointF& point) const
{
    return (point - origin()) * (kTwipsPerPixel / scale());
}

// A row's caption, field and unit list side by side from its place; the
// captions of a destination's three rows share one width, so their fields align.
QRect NetworkDrawing::rowExtent(const FieldRow& row, double x, double y) const
{
    const int height = row.edit->sizeHint().height();
    const int width = row.captionWidth + 4 + row.edit->minimumWidth() + 4 + row.units->sizeHint().width();
    return {static_cast<int>(x), static_cast<int>(y), width, height};
}

void NetworkDrawing::placeRows()
{
    for (const FieldRow& row : rows_) {
        const QPointF at = canvasToWidget(row.place->at.x, row.place->at.y);
        const QRect extent = rowExtent(row, at.x(), at.y());
        row.caption->setGeometry(extent.left(), extent.top(), row.captionWidth, extent.height());
        const int fieldWidth = row.edit->minimumWidth();
        row.edit->setGeometry(extent.left() + row.captionWidth + 4, extent.top(), fieldWidth, extent.height());
        row.units->setGeometry(extent.left() + row.captionWidth + 8 + fieldWidth, extent.top(),
                               row.units->sizeHint().width(), extent.height());
    }
}

// The frame round a destination's fields: its three rows and a caption line above them.
QRectF NetworkDrawing::destinationFrame(const DestinationBox& box) const
{
    const QPointF corner = canvasToWidget(box.topLeft.x, box.topLeft.y);
    QRectF frame(corner, QSizeF(1, 1));
    for (const FieldRow& row : rows_)
        if (row.destination == box.line)
            frame = frame.united(QRectF(row.edit->geometry().united(row.units->geometry())));
    return frame.adjusted(0, 0, 6, 4);
}

void NetworkDrawing::resizeEvent(QResizeEvent* event)
{
    least_ = QSize(); // the fields may have taken their widths since
    placeRows();
    QWidget::resizeEvent(event);
}

void NetworkDrawing::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double s = scale() / kTwipsPerPixel;
    const auto at = [this](CanvasPoint point) { return canvasToWidget(point.x, point.y); };

    // The datum at the pump.
    p.setPen(QPen(Qt::gray, 1, Qt::DashLine));
    const QPointF datum = at({0, kPump.y});
    p.drawLine(datum, QPointF(at({kPump.x - kPumpRadius - 300, kPump.y}).x(), datum.y()));
    p.drawText(QPointF(datum.x() + 2, datum.y() - 4), "z = 0");

    // The source vessel, its liquid, and the recycle's drop into it.
    const QRectF vessel(at(kVesselTopLeft), at(kVesselBottomRight));
    p.setPen(QPen(kPipe, 2));
    p.setBrush(Qt::NoBrush);
    p.fillRect(QRectF(vessel.left(), vessel.top() + vessel.height() * 0.35, vessel.width(), vessel.height() * 0.65),
               kLiquid);
    p.drawRect(vessel);
    p.drawText(vessel, Qt::AlignHCenter | Qt::AlignTop, "Source");

    // The pipes, each line's number at the middle of its longest segment.
    p.setPen(QPen(kPipe, std::max(2.0, 3 * scale()), Qt::SolidLine, Qt::RoundCap));
    for (const PipeSegment& segment : pipeSegments())
        p.drawLine(at(segment.from), at(segment.to));
    const PipeSegment& recycleEnd = pipeSegments()[4];
    p.drawLine(at(recycleEnd.to), at({recycleEnd.to.x, kVesselTopLeft.y}));
    p.setPen(kPipe);
    for (int line = 1; line <= 11; ++line) {
        const PipeSegment* longest = nullptr;
        double length = -1;
        for (const PipeSegment& segment : pipeSegments())
            if (segment.line == line) {
                const double l = std::abs(segment.to.x - segment.from.x) + std::abs(segment.to.y - segment.from.y);
                if (l > length) {
                    length = l;
                    longest = &segment;
                }
            }
        // A third of the way along, clear of the valve near the line's end.
        const QPointF along = at(longest->from) + (at(longest->to) - at(longest->from)) * 0.3;
        const bool vertical = longest->from.x == longest->to.x;
        p.drawText(along + (vertical ? QPointF(-14, 4) : QPointF(-4, -6)), QString::number(line));
    }

    // The pump: a circle and its arrow of flow.
    const QPointF pump = at(kPump);
    const double r = kPumpRadius * s;
    p.setPen(QPen(kPipe, 2));
    p.setBrush(palette().color(QPalette::Base));
    p.drawEllipse(pump, r, r);
    QPainterPath arrow;
    arrow.moveTo(pump + QPointF(-r * 0.5, r * 0.4));
    arrow.lineTo(pump + QPointF(r * 0.5, 0));
    arrow.lineTo(pump + QPointF(-r * 0.5, -r * 0.4));
    p.drawPath(arrow);
    p.drawText(pump + QPointF(r + 4, r + 2), "Pump");

    // The control valves, as bow ties across their pipes.
    p.setPen(QPen(kValve, 2));
    p.setBrush(palette().color(QPalette::Base));
    const double v = 8 * scale();
    for (const CanvasPoint& valve : valvePlaces()) {
        const QPointF c = at(valve);
        p.drawPolygon(QPolygonF{c + QPointF(-v, -v * 0.7), c + QPointF(v, v * 0.7), c + QPointF(v, -v * 0.7),
                                c + QPointF(-v, v * 0.7)});
    }

    // The destinations: a frame round each terminal line's fields.
    p.setPen(QPen(kPipe, 1));
    p.setBrush(Qt::NoBrush);
    for (const DestinationBox& box : destinationBoxes()) {
        const QRectF frame = destinationFrame(box);
        p.drawRoundedRect(frame, 4, 4);
        p.drawText(frame.adjusted(6, 2, 0, 0), Qt::AlignLeft | Qt::AlignTop, lineCaption(box.line));
    }
}

void NetworkDrawing::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF point = toCanvas(event->position());
    setCursor(segmentAt({point.x(), point.y()}) >= 0 ? Qt::CrossCursor : Qt::ArrowCursor);
    QWidget::mouseMoveEvent(event);
}

void NetworkDrawing::mousePressEvent(QMouseEvent* event)
{
    const QPointF point = toCanvas(event->position());
    view_.guard([&] { model_.panNetwork_MouseDown({point.x(), point.y()}); });
    QWidget::mousePressEvent(event);
}

} // namespace kestrova
