#pragma once
// The drawing of the pump network (panNetwork): the source vessel, the
// pump, the eleven lines in their seventeen segments, the six control valves
// and the destinations, drawn from the tool's canvas to the size of the pane,
// with the destination, source and valve fields laid out on it. A press on a
// segment goes to the tool, which picks the line on its own canvas.

#include "tools/pump_network/model/pump_network_drawing.h"

#include <QWidget>

#include <vector>

namespace kestrova {

class FormView;
class PumpNetworkModel;

class NetworkDrawing : public QWidget {
public:
    NetworkDrawing(PumpNetworkModel& model, FormView& view, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }
    QPointF canvasToWidget(double x, double y) const; // canvas twips to the widget's pixels

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    // A field's row on the drawing: its caption, its field and its unit list.
    struct FieldRow {
        const pump_network::FieldPlace* place;
        QWidget* caption;
        QWidget* edit;
        QWidget* units;
        int captionWidth;
        int destination; // the terminal line whose frame holds the row; 0 for none
    };
    double scale() const;
    QPointF origin() const;
    QPointF toCanvas(const QPointF& point) const;
    void placeRows();
    QRect rowExtent(const FieldRow& row, double x, double y) const;
    QRectF destinationFrame(const pump_network::DestinationBox& box) const;

    PumpNetworkModel& model_;
    FormView& view_;
    std::vector<FieldRow> rows_;
    mutable QSize least_; // minimumSizeHint, measured once per size
};

} // namespace kestrova
