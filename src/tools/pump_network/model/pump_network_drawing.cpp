#include "tools/pump_network/model/pump_network_drawing.h"

#include "tools/pump_network/model/pump_network_controls.h"

#include <algorithm>

namespace kestrova::pump_network {

namespace {

// Twips of a pixel at the canvas's own scale, so that the plan below reads in pixels.
constexpr double px(double pixels) { return pixels * 15; }

// The verticals of the drawing: the pump's line, the manifold's.
constexpr double kPumpX = px(230), kManifoldX = px(430), kEndX = px(665);
constexpr double kLine5Y = px(50), kTee2Y = px(150), kManifoldY = px(250), kTee3Y = px(380), kLine11Y = px(480);
constexpr double kRecycleY = px(150), kSuctionY = px(380), kVesselX = px(70);

} // namespace

const std::array<PipeSegment, 17>& pipeSegments()
{
    static const std::array<PipeSegment, 17> segments{{
        {{kVesselX, px(330)}, {kVesselX, kSuctionY}, 1},            // 0: out of the vessel
        {{kVesselX, kSuctionY}, {px(212), kSuctionY}, 1},           // 1: to the pump's suction
        {{kPumpX, px(362)}, {kPumpX, kManifoldY}, 2},               // 2: the discharge up to the first tee
        {{kPumpX, kManifoldY}, {kPumpX, kRecycleY}, 3},             // 3: the recycle up
        {{kPumpX, kRecycleY}, {kVesselX, kRecycleY}, 3},            // 4: and back over the vessel
        {{kPumpX, kManifoldY}, {px(295), kManifoldY}, 4},           // 5, 6, 7: the header to the manifold
        {{px(295), kManifoldY}, {px(360), kManifoldY}, 4},
        {{px(360), kManifoldY}, {kManifoldX, kManifoldY}, 4},
        {{kManifoldX, kTee2Y}, {kManifoldX, kLine5Y}, 5},           // 8, 9: line 5, up and out
        {{kManifoldX, kLine5Y}, {kEndX, kLine5Y}, 5},
        {{kManifoldX, kTee2Y}, {kEndX, kTee2Y}, 6},                 // 10: line 6
        {{kManifoldX, kManifoldY}, {kManifoldX, kTee2Y}, 7},        // 11: line 7, up to the second tee
        {{kManifoldX, kManifoldY}, {kEndX, kManifoldY}, 8},         // 12: line 8
        {{kManifoldX, kManifoldY}, {kManifoldX, kTee3Y}, 9},        // 13: line 9, down to the third tee
        {{kManifoldX, kTee3Y}, {kEndX, kTee3Y}, 10},                // 14: line 10
        {{kManifoldX, kTee3Y}, {kManifoldX, kLine11Y}, 11},         // 15, 16: line 11, down and out
        {{kManifoldX, kLine11Y}, {kEndX, kLine11Y}, 11},
    }};
    return segments;
}

int segmentAt(CanvasPoint point)
{
    const auto& segments = pipeSegments();
    for (size_t i = 0; i < segments.size(); ++i) {
        const PipeSegment& s = segments[i];
        const double left = std::min(s.from.x, s.to.x) - 75, right = std::max(s.from.x, s.to.x) + 75;
        const double top = std::min(s.from.y, s.to.y) - 150, bottom = std::max(s.from.y, s.to.y) + 150;
        if (point.x >= left && point.x <= right && point.y >= top && point.y <= bottom)
            return static_cast<int>(i);
    }
    return -1;
}

const std::array<DestinationBox, 6>& destinationBoxes()
{
    static const std::array<DestinationBox, 6> boxes{{
        {5, {px(672), px(5)}},
        {6, {px(672), px(105)}},
        {8, {px(672), px(205)}},
        {10, {px(672), px(335)}},
        {11, {px(672), px(435)}},
        {3, {px(20), px(5)}},
    }};
    return boxes;
}

const std::array<CanvasPoint, 6>& valvePlaces()
{
    static const std::array<CanvasPoint, 6> valves{{
        {px(590), kLine5Y}, {px(590), kTee2Y}, {px(590), kManifoldY}, {px(590), kTee3Y}, {px(590), kLine11Y},
        {px(150), kRecycleY},
    }};
    return valves;
}

const std::array<FieldPlace, 25>& fieldPlaces()
{
    static const std::array<FieldPlace, 25> places = [] {
        std::array<FieldPlace, 25> made{};
        size_t next = 0;
        // Each terminal line's box: flow, pressure, height under its caption.
        for (size_t t = 0; t < kTerminals.size(); ++t) {
            const CanvasPoint box = destinationBoxes()[t].topLeft;
            const char* captions[] = {"Flow:", "Pressure:", "Height:"};
            for (int k = 0; k < 3; ++k)
                made[next++] = {static_cast<int>(3 * t) + k, {box.x + px(6), box.y + px(20 + 24 * k)}, captions[k]};
        }
        made[next++] = {SourceHeight, {px(10), px(410)}, "Fluid height:"};
        // The valve drops under their valves; line 3's over its own.
        const double valveRows[] = {kLine5Y, kTee2Y, kManifoldY, kTee3Y, kLine11Y};
        for (int t = 0; t < 5; ++t)
            made[next++] = {Valve5Drop + t, {px(436), valveRows[t] + px(8)}, "Valve dP:"};
        made[next++] = {Valve3Drop, {px(100), kRecycleY - px(42)}, "Valve dP:"};
        return made;
    }();
    return places;
}

} // namespace kestrova::pump_network
