#include "Drawing/SvgWriter.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string_view>

#include "Drawing/TextLayout.hpp"
#include "Drawing/TextSize.hpp"
#include "Text/Number.hpp"
#include "Text/XmlText.hpp"

// Written by hand, not by Cairo's SVG surface: that one turns texts into outlines, knows no layers
// and numbers its groups by a counter of the process, so that no two files are alike.

namespace Merivane::Drawing {
namespace {

using Merivane::Text::FormatFixed;

std::string Escaped(std::string_view text) {
    return Text::EscapeXml(CleanText(text));
}

// Thousandths of a millimetre, without zeros at the end.
std::string Number(double value) {
    std::string text = FormatFixed(value, 3);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string Attribute(std::string_view name, std::string_view value) {
    std::string attribute = " ";
    attribute.append(name).append("=\"").append(value).append("\"");
    return attribute;
}

std::string Attribute(std::string_view name, double value) {
    return Attribute(name, Number(value));
}

unsigned ColorByte(double part) {
    return static_cast<unsigned>(std::lround(std::clamp(part, 0.0, 1.0) * 255.0));
}

// `kind` is "fill" or "stroke".
std::string Paint(const std::string& kind, const Color& color) {
    std::array<char, 8> hex{};
    std::snprintf(hex.data(), hex.size(), "#%02x%02x%02x", ColorByte(color.red),
                  ColorByte(color.green), ColorByte(color.blue));
    std::string attributes = Attribute(kind, hex.data());
    if (color.alpha < 1.0) {
        attributes += Attribute(kind + "-opacity", std::max(color.alpha, 0.0));
    }
    return attributes;
}

std::string Paint(const Stroke& stroke) {
    std::string attributes =
        Paint("stroke", stroke.color) + Attribute("stroke-width", std::max(stroke.width, 0.0));
    std::string dashes;
    for (double dash : stroke.dashes) {
        dashes += (dashes.empty() ? "" : " ") + Number(dash);
    }
    if (!dashes.empty()) {
        attributes += Attribute("stroke-dasharray", dashes) + Attribute("stroke-linecap", "butt");
    }
    return attributes;
}

struct SvgPainter {
    std::string& svg;
    double pageHeight; // mm; SVG's y runs downwards

    void operator()(const Area& area) const;
    void operator()(const Polyline& line) const;
    void operator()(const Arc& arc) const;
    void operator()(const TextRun& text) const;

    void AppendPoint(const Point& point) const {
        svg += Number(point.x) + " " + Number(pageHeight - point.y);
    }
    void AppendLine(const std::vector<Point>& points, bool closed) const;
};

void SvgPainter::AppendLine(const std::vector<Point>& points, bool closed) const {
    char command = 'M';
    for (const Point& point : points) {
        svg += command;
        AppendPoint(point);
        command = 'L';
    }
    if (closed && !points.empty()) {
        svg += 'Z';
    }
}

void SvgPainter::operator()(const Area& area) const {
    svg += "<path d=\"";
    for (const std::vector<Point>& ring : area.rings) {
        AppendLine(ring, true);
    }
    svg += "\"" + Attribute("fill-rule", "evenodd") + Paint("fill", area.fill);
    if (area.bleed > 0.0) {
        svg += Paint({2.0 * area.bleed, area.fill, {}});
    }
    svg += "/>\n";
}

void SvgPainter::operator()(const Polyline& line) const {
    svg += "<path d=\"";
    AppendLine(line.points, line.closed);
    svg += "\"" + Paint(line.stroke) + "/>\n";
}

void SvgPainter::operator()(const Arc& arc) const {
    constexpr double fullTurn = 2.0 * std::numbers::pi;
    const double sweep = arc.end - arc.start;
    const auto at = [&arc](double angle) {
        return Point{arc.center.x + arc.radius * std::cos(angle),
                     arc.center.y + arc.radius * std::sin(angle)};
    };
    if (std::abs(sweep) >= fullTurn - 1e-9) {
        svg += "<circle" + Attribute("cx", arc.center.x) +
               Attribute("cy", pageHeight - arc.center.y) + Attribute("r", arc.radius);
    } else {
        const double turn = sweep < 0.0 ? sweep + fullTurn : sweep;
        const std::string radius = Number(arc.radius);
        svg += "<path d=\"M";
        AppendPoint(at(arc.start));
        svg += "A" + radius + " " + radius + (turn > std::numbers::pi ? " 0 1 0 " : " 0 0 0 ");
        AppendPoint(at(arc.end));
        svg += "\"";
    }
    svg += Paint(arc.stroke) + "/>\n";
}

void SvgPainter::operator()(const TextRun& text) const {
    const TextSize size = MeasureText(text.text, text.height, text.weight, text.face);
    const Point origin = TextOrigin(text, size);
    std::string attributes = Attribute("x", origin.x) + Attribute("y", pageHeight - origin.y) +
                             Attribute("font-size", text.height * EmPerCapital);
    if (size.width > 0.0) {
        attributes +=
            Attribute("textLength", size.width) + Attribute("lengthAdjust", "spacingAndGlyphs");
    }
    if (text.weight == TextWeight::Bold) {
        attributes += Attribute("font-weight", "bold");
    }
    if (text.face == TextFace::Monospaced) {
        attributes += Attribute("font-family",
                                std::string("'") + MonospacedFamily + "', Consolas, monospace");
    }
    if (text.rotation != 0.0) {
        attributes +=
            Attribute("transform", "rotate(" + Number(-text.rotation) + " " + Number(origin.x) +
                                       " " + Number(pageHeight - origin.y) + ")");
    }
    const std::string content = ">" + Escaped(text.text) + "</text>\n";
    // Two texts and not `paint-order`, which several drawing programs do not know: they would draw
    // the halo over the letters.
    if (text.halo > 0.0) {
        svg += "<text aria-hidden=\"true\"" + attributes + Paint({2.0 * text.halo, White, {}}) +
               content;
    }
    svg += "<text" + attributes + Paint("fill", text.color) + content;
}

enum class SvgForm { File, Element };

std::string HeadOf(SvgForm form, const std::string& width, const std::string& height) {
    if (form == SvgForm::Element) {
        return "<svg role=\"img\"";
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"" +
           Attribute("width", width + "mm") + Attribute("height", height + "mm");
}

void AppendHead(std::string& svg, const DisplayList& list, SvgForm form) {
    const std::string width = Number(list.width);
    const std::string height = Number(list.height);
    svg += HeadOf(form, width, height) + Attribute("viewBox", "0 0 " + width + " " + height);
    svg += Attribute("font-family", std::string("'") + FontFamily + "', Verdana, sans-serif");
    svg += " xml:space=\"preserve\" fill=\"none\" stroke-linejoin=\"round\" "
           "stroke-linecap=\"round\">\n";
    svg += "<title>" + Escaped(list.title) + "</title>\n";
    svg += "<rect" + Attribute("width", width) + Attribute("height", height) +
           Paint("fill", White) + "/>\n";
}

void AppendLayers(std::string& svg, const DisplayList& list, SvgForm form) {
    const SvgPainter painter{svg, list.height};
    for (std::size_t k = 0; k < list.layers.size(); ++k) {
        const Layer& layer = list.layers[k];
        svg += "<g";
        if (form == SvgForm::File) {
            svg += Attribute("id", "camada-" + std::to_string(k + 1)) +
                   Attribute("inkscape:groupmode", "layer") +
                   Attribute("inkscape:label", Escaped(layer.name));
        }
        svg += ">\n";
        for (const Element& element : layer.elements) {
            std::visit(painter, element);
        }
        svg += "</g>\n";
    }
}

bool Write(const DisplayList& list, SvgForm form, std::string& bytes, std::string& error) {
    if (!CheckDisplayList(list, error)) {
        return false;
    }
    std::string svg;
    AppendHead(svg, list, form);
    AppendLayers(svg, list, form);
    svg += "</svg>\n";
    bytes = std::move(svg);
    return true;
}

} // namespace

bool WriteSvg(const DisplayList& list, std::string& bytes, std::string& error) {
    return Write(list, SvgForm::File, bytes, error);
}

bool WriteSvgElement(const DisplayList& list, std::string& element, std::string& error) {
    return Write(list, SvgForm::Element, element, error);
}

} // namespace Merivane::Drawing
