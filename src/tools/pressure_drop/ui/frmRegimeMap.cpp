#include "tools/pressure_drop/ui/frmRegimeMap.h"

#include "forms/ui/form_view.h"
#include "forms/model/help_contexts.h"
#include "forms/model/user_interface.h"
#include "hydraulics/basTransportFunctions.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <map>

namespace kestrova {

namespace {

constexpr double kMinX = 0.1, kMaxX = 10000, kMinY = 100, kMaxY = 100000;

const char* orientationOf(bool horizontal) { return horizontal ? "Horizontal" : "Vertical Up"; }

} // namespace

QStringList regimesOfMap(bool horizontal)
{
    if (horizontal)
        return {"Stratified", "Wave", "Annular", "Dispersed", "Slug", "Plug", "Bubble", "Froth"};
    return {"Slug", "Annular", "Dispersed", "Bubble", "Froth"};
}

QColor regimeShade(const QString& regime)
{
    static const std::map<QString, QColor> shades{
        {"Stratified", QColor(0xc6, 0xdb, 0xef)}, {"Wave", QColor(0x9e, 0xca, 0xe1)},
        {"Annular", QColor(0xfd, 0xd0, 0xa2)},    {"Dispersed", QColor(0xfc, 0xbb, 0xa1)},
        {"Slug", QColor(0xc7, 0xe9, 0xc0)},       {"Plug", QColor(0xa1, 0xd9, 0x9b)},
        {"Bubble", QColor(0xda, 0xda, 0xeb)},     {"Froth", QColor(0xfe, 0xe3, 0x91)}};
    const auto found = shades.find(regime);
    return found == shades.end() ? QColor(Qt::white) : found->second;
}

RegimeMapPicture::RegimeMapPicture(bool horizontal, QWidget* parent) : QWidget(parent), horizontal_(horizontal)
{
    setObjectName("Image1");
    setMouseTracking(true);
}

QRect RegimeMapPicture::plotArea() const
{
    return rect().adjusted(70, 20, -20, -55);
}

// Each pixel of the plot takes the shade of the regime the map gives there.
void RegimeMapPicture::shadeRegions(const QRect& plot)
{
    regions_ = QImage(plot.size(), QImage::Format_RGB32);
    const double lx0 = std::log10(kMinX), lx1 = std::log10(kMaxX);
    const double ly0 = std::log10(kMinY), ly1 = std::log10(kMaxY);
    for (int py = 0; py < plot.height(); ++py) {
        const double Y = std::pow(10.0, ly1 - (ly1 - ly0) * (py + 0.5) / plot.height());
        auto* line = reinterpret_cast<QRgb*>(regions_.scanLine(py));
        for (int px = 0; px < plot.width(); ++px) {
            const double X = std::pow(10.0, lx0 + (lx1 - lx0) * (px + 0.5) / plot.width());
            line[px] = regimeShade(QString::fromStdString(RegimeAt(orientationOf(horizontal_), X, Y))).rgb();
        }
    }
}

void RegimeMapPicture::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    const QRect plot = plotArea();
    if (plot.width() < 20 || plot.height() < 20)
        return;
    if (regions_.size() != plot.size())
        shadeRegions(plot);
    p.drawImage(plot.topLeft(), regions_);

    // Each region's name stands where the region is widest in both directions.
    const auto reach = [this](int x, int y, int dx, int dy) {
        const QRgb shade = regions_.pixel(x, y);
        int steps = 0;
        while (steps < 80 && regions_.valid(x + dx, y + dy) && regions_.pixel(x + dx, y + dy) == shade) {
            x += dx;
            y += dy;
            ++steps;
        }
        return steps;
    };
    std::map<QRgb, std::pair<int, QPoint>> best;
    for (int py = 0; py < regions_.height(); py += 4)
        for (int px = 0; px < regions_.width(); px += 4) {
            const int room = std::min({reach(px, py, 1, 0) + reach(px, py, -1, 0), 4 * reach(px, py, 0, 1),
                                       4 * reach(px, py, 0, -1)});
            auto& [score, at] = best[regions_.pixel(px, py)];
            if (room > score) {
                score = room;
                at = QPoint(px, py);
            }
        }
    p.setPen(Qt::black);
    QFont bold = p.font();
    bold.setBold(true);
    p.setFont(bold);
    for (const QString& regime : regimesOfMap(horizontal_)) {
        const auto found = best.find(regimeShade(regime).rgb());
        if (found == best.end())
            continue;
        const QPointF centre = plot.topLeft() + found->second.second;
        p.drawText(QRectF(centre.x() - 50, centre.y() - 10, 100, 20), Qt::AlignCenter, regime);
    }
    p.setFont(font());

    // Logarithmic axes: a grid line and a label at every decade.
    p.setPen(QPen(QColor(0, 0, 0, 60), 1, Qt::DotLine));
    const auto xAt = [&](double X) {
        return plot.left() + plot.width() * (std::log10(X) - std::log10(kMinX)) / (std::log10(kMaxX) - std::log10(kMinX));
    };
    const auto yAt = [&](double Y) {
        return plot.bottom() - plot.height() * (std::log10(Y) - std::log10(kMinY)) / (std::log10(kMaxY) - std::log10(kMinY));
    };
    for (double X = kMinX; X <= kMaxX * 1.001; X *= 10)
        p.drawLine(QPointF(xAt(X), plot.top()), QPointF(xAt(X), plot.bottom()));
    for (double Y = kMinY; Y <= kMaxY * 1.001; Y *= 10)
        p.drawLine(QPointF(plot.left(), yAt(Y)), QPointF(plot.right(), yAt(Y)));
    p.setPen(Qt::black);
    p.drawRect(plot);
    for (double X = kMinX; X <= kMaxX * 1.001; X *= 10)
        p.drawText(QRectF(xAt(X) - 30, plot.bottom() + 4, 60, 16), Qt::AlignCenter, QString::number(X));
    for (double Y = kMinY; Y <= kMaxY * 1.001; Y *= 10)
        p.drawText(QRectF(plot.left() - 66, yAt(Y) - 8, 60, 16), Qt::AlignRight | Qt::AlignVCenter, QString::number(Y, 'f', 0));
    p.drawText(QRectF(plot.left(), plot.bottom() + 24, plot.width(), 18), Qt::AlignCenter,
               QString::fromUtf8("X = (Gl / Gg) \u03BB \u03C8"));
    p.save();
    p.translate(14, plot.center().y());
    p.rotate(-90);
    p.drawText(QRectF(-120, -8, 240, 16), Qt::AlignCenter, QString::fromUtf8("Y = Gg / \u03BB,  lb/(ft\u00B2 h)"));
    p.restore();
}

RegimeMapLegend::RegimeMapLegend(bool horizontal, QWidget* parent) : QWidget(parent), horizontal_(horizontal)
{
    setObjectName("Image2");
}

void RegimeMapLegend::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    int y = 12;
    p.drawText(QRect(10, y, width() - 20, 18), Qt::AlignLeft, "Flow regimes");
    y += 26;
    for (const QString& regime : regimesOfMap(horizontal_)) {
        p.fillRect(QRect(12, y, 26, 16), regimeShade(regime));
        p.drawRect(QRect(12, y, 26, 16));
        p.drawText(QRect(46, y, width() - 50, 16), Qt::AlignLeft | Qt::AlignVCenter, regime);
        y += 24;
    }
    p.drawText(QRect(10, y + 6, width() - 20, height() - y - 12), Qt::TextWordWrap,
               QString::fromUtf8("\u03BB = \u221A((\u03C1l/62.3)(\u03C1g/0.075))\n\u03C8 = (73/\u03C3)(\u03BCl(62.3/\u03C1l)\u00B2)^\u2153\n"
                                 "\u03C1 lb/ft\u00B3, \u03BC cP, \u03C3 dyn/cm"));
}

frmRegimeMap::frmRegimeMap(bool horizontal, UserInterface& ui, QWidget* parent) : QWidget(parent), ui_(ui)
{
    setObjectName(horizontal ? "frm2PhaseHorizontal" : "frm2PhaseVertical");
    setProperty(kHelpContextProperty, horizontal ? help::RegimeMapHorizontal : help::RegimeMapVertical);
    const QString title = horizontal ? "2-Phase Horizontal Flow Regime Map" : "2-Phase Vertical Flow Regime Map";
    setWindowTitle(title);
    status_ = title;
    auto* label = new QLabel(title, this);
    label->setObjectName("Label1");
    QFont f = label->font();
    f.setPointSize(f.pointSize() + 3);
    f.setBold(true);
    label->setFont(f);
    label->setAlignment(Qt::AlignCenter);
    auto* picture = new RegimeMapPicture(horizontal, this);
    auto* legend = new RegimeMapLegend(horizontal, this);
    auto* images = new QHBoxLayout;
    images->addStretch();
    images->addWidget(picture, 4, Qt::AlignVCenter);
    images->addSpacing(100 / 15 + 6); // the gap between the two pictures
    images->addWidget(legend, 0, Qt::AlignVCenter);
    images->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(images, 1);
    for (QWidget* w : {static_cast<QWidget*>(this), static_cast<QWidget*>(picture), static_cast<QWidget*>(legend)})
        w->installEventFilter(this);
}

bool frmRegimeMap::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter)
        ui_.setStatusText(status_.toStdString());
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrova
