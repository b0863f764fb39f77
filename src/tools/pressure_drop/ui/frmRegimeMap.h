#pragma once
// The two-phase flow regime maps (frm2PhaseHorizontal, frm2PhaseVertical):
// drawn by the program from the boundary lines of the maps, on logarithmic
// axes, with each region named. They show the maps only; no point is plotted.

#include <QImage>
#include <QWidget>

class QLabel;

namespace kestrova {

class UserInterface;

// Image1: the map itself, regions shaded and named.
class RegimeMapPicture : public QWidget {
public:
    explicit RegimeMapPicture(bool horizontal, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {560, 420}; }
    QSize minimumSizeHint() const override { return {320, 240}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override { regions_ = QImage(); }

private:
    QRect plotArea() const;
    void shadeRegions(const QRect& plot);
    bool horizontal_;
    QImage regions_;
};

// Image2: the regimes and their shades.
class RegimeMapLegend : public QWidget {
public:
    explicit RegimeMapLegend(bool horizontal, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {210, 340}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool horizontal_;
};

class frmRegimeMap : public QWidget {
public:
    frmRegimeMap(bool horizontal, UserInterface& ui, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    UserInterface& ui_;
    QString status_;
};

// The regimes of a map, in the order of its legend.
QStringList regimesOfMap(bool horizontal);
QColor regimeShade(const QString& regime);

} // namespace kestrova
