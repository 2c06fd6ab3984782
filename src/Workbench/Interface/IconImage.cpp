#include "Workbench/Interface/IconImage.hpp"

#include <cmath>
#include <map>
#include <utility>

#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

/// One tag with what it says.
struct Tag {
    std::string name;
    std::map<std::string, std::string> attributes;
};

/// Reads the tag at `at`, which is behind its `<`; false at a broken one.
bool ReadTag(std::string_view svg, std::size_t& at, Tag& tag) {
    const std::size_t end = svg.find('>', at);
    if (end == std::string_view::npos) {
        return false;
    }
    std::string_view body = svg.substr(at, end - at);
    at = end + 1;
    body = Text::Trim(body.ends_with('/') ? body.substr(0, body.size() - 1) : body);
    const std::size_t nameEnd = std::min(body.find(' '), body.size());
    tag.name = body.substr(0, nameEnd);
    body.remove_prefix(nameEnd);
    while (!(body = Text::Trim(body)).empty()) {
        const std::size_t equals = body.find("=\"");
        const std::size_t close =
            equals == std::string_view::npos ? equals : body.find('"', equals + 2);
        if (close == std::string_view::npos) {
            return false;
        }
        tag.attributes.emplace(body.substr(0, equals), body.substr(equals + 2, close - equals - 2));
        body.remove_prefix(close + 1);
    }
    return true;
}

bool ReadNumberOf(const Tag& tag, const std::string& name, double& value) {
    const auto found = tag.attributes.find(name);
    return found != tag.attributes.end() && Text::ReadEntireNumber(found->second, value) &&
           std::isfinite(value);
}

int HexDigit(char c) {
    const std::size_t digit = std::string_view("0123456789ABCDEF").find(c);
    return digit == std::string_view::npos ? -1 : static_cast<int>(digit);
}

/// "#RRGGBB", or "none" and nothing at all for no colour.
bool ReadColor(const Tag& tag, const std::string& name, std::optional<Drawing::Color>& color) {
    const auto found = tag.attributes.find(name);
    if (found == tag.attributes.end() || found->second == "none") {
        return true;
    }
    const std::string& text = found->second;
    double channels[3] = {};
    if (text.size() != 7 || text[0] != '#') {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        const int high = HexDigit(text[1 + 2 * i]);
        const int low = HexDigit(text[2 + 2 * i]);
        if (high < 0 || low < 0) {
            return false;
        }
        channels[i] = (high * 16 + low) / 255.0;
    }
    color = Drawing::Color{channels[0], channels[1], channels[2], 1.0};
    return true;
}

bool ReadPoints(const Tag& tag, IconShape& shape) {
    const auto found = tag.attributes.find("points");
    if (found == tag.attributes.end()) {
        return false;
    }
    for (std::string_view rest = Text::Trim(found->second); !rest.empty();
         rest = Text::Trim(rest)) {
        Drawing::Point point;
        const std::size_t x = Text::ReadNumber(rest, point.x);
        if (x == 0 || x >= rest.size() || rest[x] != ',') {
            return false;
        }
        rest.remove_prefix(x + 1);
        const std::size_t y = Text::ReadNumber(rest, point.y);
        if (y == 0 || !std::isfinite(point.x) || !std::isfinite(point.y)) {
            return false;
        }
        rest.remove_prefix(y);
        shape.points.push_back(point);
    }
    return shape.points.size() >= 2;
}

bool ReadLine(const Tag& tag, IconShape& shape) {
    Drawing::Point a;
    Drawing::Point b;
    const bool read = ReadNumberOf(tag, "x1", a.x) && ReadNumberOf(tag, "y1", a.y) &&
                      ReadNumberOf(tag, "x2", b.x) && ReadNumberOf(tag, "y2", b.y);
    shape.points = {a, b};
    return read;
}

bool ReadRectangle(const Tag& tag, IconShape& shape) {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    const bool read = ReadNumberOf(tag, "x", x) && ReadNumberOf(tag, "y", y) &&
                      ReadNumberOf(tag, "width", width) && ReadNumberOf(tag, "height", height);
    shape.points = {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
    shape.closed = true;
    return read;
}

bool ReadCircle(const Tag& tag, IconShape& shape) {
    Drawing::Point center;
    const bool read = ReadNumberOf(tag, "cx", center.x) && ReadNumberOf(tag, "cy", center.y) &&
                      ReadNumberOf(tag, "r", shape.radius) && shape.radius > 0.0;
    shape.points = {center};
    return read;
}

bool ReadShape(const Tag& tag, IconShape& shape) {
    shape.closed = tag.name == "polygon";
    using Reader = bool (*)(const Tag&, IconShape&);
    constexpr std::pair<std::string_view, Reader> readers[] = {{"line", ReadLine},
                                                               {"rect", ReadRectangle},
                                                               {"circle", ReadCircle},
                                                               {"polyline", ReadPoints},
                                                               {"polygon", ReadPoints}};
    for (const auto& [name, reader] : readers) {
        if (name == tag.name) {
            ReadNumberOf(tag, "stroke-width", shape.strokeWidth);
            return reader(tag, shape) && ReadColor(tag, "fill", shape.fill) &&
                   ReadColor(tag, "stroke", shape.stroke);
        }
    }
    return false;
}

} // namespace

bool ParseIconImage(std::string_view svg, IconImage& image, std::string& error) {
    IconImage read;
    for (std::size_t at = svg.find('<'); at != std::string_view::npos; at = svg.find('<', at)) {
        Tag tag;
        if (!ReadTag(svg, ++at, tag)) {
            error = "o ícone tem um elemento sem fim";
            return false;
        }
        if (tag.name == "/svg") {
            image = std::move(read);
            return true;
        }
        const bool done = tag.name == "svg" ? ReadNumberOf(tag, "width", read.width) &&
                                                  ReadNumberOf(tag, "height", read.height)
                                            : ReadShape(tag, read.shapes.emplace_back());
        if (!done) {
            error = "o ícone tem um elemento \"" + tag.name + "\" que não se lê";
            return false;
        }
    }
    error = "o ícone não é uma imagem SVG";
    return false;
}

} // namespace Merivane::Workbench
