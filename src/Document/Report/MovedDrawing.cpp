#include "Document/Report/MovedDrawing.hpp"

#include <utility>

namespace Merivane::Document {

namespace {

struct Mover {
    double scale;
    Drawing::Point place;

    void Move(Drawing::Point& point) const {
        point = {place.x + scale * point.x, place.y + scale * point.y};
    }

    void Move(Drawing::Stroke& stroke) const {
        stroke.width *= scale;
        for (double& dash : stroke.dashes) {
            dash *= scale;
        }
    }

    Drawing::Element operator()(Drawing::Area area) const {
        for (std::vector<Drawing::Point>& ring : area.rings) {
            for (Drawing::Point& point : ring) {
                Move(point);
            }
        }
        area.bleed *= scale;
        return area;
    }

    Drawing::Element operator()(Drawing::Polyline line) const {
        for (Drawing::Point& point : line.points) {
            Move(point);
        }
        Move(line.stroke);
        return line;
    }

    Drawing::Element operator()(Drawing::Arc arc) const {
        Move(arc.center);
        arc.radius *= scale;
        Move(arc.stroke);
        return arc;
    }

    Drawing::Element operator()(Drawing::TextRun text) const {
        Move(text.position);
        text.height *= scale;
        text.halo *= scale;
        return text;
    }
};

} // namespace

Drawing::Element MovedElement(const Drawing::Element& element, double scale, Drawing::Point place) {
    return std::visit(Mover{scale, place}, element);
}

} // namespace Merivane::Document
