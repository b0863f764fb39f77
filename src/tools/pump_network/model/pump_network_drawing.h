#pragma once
// The network drawing as the tool knows it: the seventeen pipe segments of
// the fixed network and the places of the fields on it, in twips on a canvas
// of its own. The window draws them to scale; a press is picked here, on the
// canvas, so that the pick rule holds at every size.

#include <array>

namespace kestrova::pump_network {

struct CanvasPoint {
    double x, y; // twips
};

struct PipeSegment {
    CanvasPoint from, to;
    int line;
};

// The canvas, in twips: everything of the drawing lies within it.
inline constexpr double kCanvasWidth = 13950, kCanvasHeight = 8100;

// Segments 0 to 16 and the line of each: 0, 1 line 1; 2 line 2; 3, 4 line 3;
// 5, 6, 7 line 4; 8, 9 line 5; 10 line 6; 11 line 7; 12 line 8; 13 line 9;
// 14 line 10; 15, 16 line 11.
const std::array<PipeSegment, 17>& pipeSegments();

// The first segment, from 0, whose rectangle widened by 75 twips in x and
// 150 in y holds the point; -1 when none does.
int segmentAt(CanvasPoint point);

// Where a field's row (caption, field, unit list) begins on the canvas.
struct FieldPlace {
    int field;
    CanvasPoint at;
    const char* caption;
};
const std::array<FieldPlace, 25>& fieldPlaces(); // the destinations, the source height and the six valve drops

// The frames of the destination fields, one per terminal line in the order of kTerminals.
struct DestinationBox {
    int line;
    CanvasPoint topLeft;
};
const std::array<DestinationBox, 6>& destinationBoxes();

// The equipment the drawing shows: the source vessel (a rectangle), the pump
// (a circle's centre) and the valves (one per terminal line, in the order of kTerminals).
inline constexpr CanvasPoint kVesselTopLeft{300, 2700}, kVesselBottomRight{1800, 4950};
inline constexpr CanvasPoint kPump{3450, 5700};
inline constexpr double kPumpRadius = 270;
const std::array<CanvasPoint, 6>& valvePlaces();

} // namespace kestrova::pump_network
