#include "BodyChecks.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace Merivane::Tests {

namespace {

using Host::Coordinate3D;

Coordinate3D Minus(const Coordinate3D& a, const Coordinate3D& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Coordinate3D Cross(const Coordinate3D& a, const Coordinate3D& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Dot(const Coordinate3D& a, const Coordinate3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

} // namespace

std::vector<std::vector<Coordinate3D>> FaceContours(const Host::Body& body,
                                                    const Host::BodyFace& face) {
    std::vector<std::vector<Coordinate3D>> contours(1);
    for (const std::int32_t number : face.edges) {
        if (number == 0) {
            contours.emplace_back();
            continue;
        }
        const Host::BodyEdge& edge = body.edges.at(static_cast<std::size_t>(std::abs(number) - 1));
        const std::int32_t start = number > 0 ? edge.from : edge.to;
        contours.back().push_back(Workbench::TransformPlace(
            body.transform, body.vertices.at(static_cast<std::size_t>(start - 1))));
    }
    return contours;
}

bool IsClosed(const Host::Body& body) {
    std::vector<int> forwards(body.edges.size());
    std::vector<int> backwards(body.edges.size());
    for (const Host::BodyFace& face : body.faces) {
        for (const std::int32_t number : face.edges) {
            const auto edge = static_cast<std::size_t>(std::abs(number)) - 1;
            if (number != 0 && edge >= body.edges.size()) {
                return false;
            }
            if (number != 0) {
                ++(number > 0 ? forwards : backwards)[edge];
            }
        }
        for (const auto& contour : FaceContours(body, face)) {
            if (contour.size() < 3) {
                return false;
            }
        }
    }
    const auto once = [](int count) { return count == 1; };
    return !body.faces.empty() && std::all_of(forwards.begin(), forwards.end(), once) &&
           std::all_of(backwards.begin(), backwards.end(), once);
}

Coordinate3D DoubledArea(const Host::Body& body, const Host::BodyFace& face) {
    Coordinate3D sum;
    for (const auto& contour : FaceContours(body, face)) {
        for (std::size_t i = 0; i + 1 < contour.size(); ++i) {
            const Coordinate3D part =
                Cross(Minus(contour[i], contour[0]), Minus(contour[i + 1], contour[0]));
            sum = {sum.x + part.x, sum.y + part.y, sum.z + part.z};
        }
    }
    return sum;
}

double FaceArea(const Host::Body& body, const Host::BodyFace& face) {
    const Coordinate3D doubled = DoubledArea(body, face);
    return std::sqrt(Dot(doubled, doubled)) / 2.0;
}

double Volume(const Host::Body& body) {
    double volume = 0.0;
    const Coordinate3D origin = FaceContours(body, body.faces.at(0)).at(0).at(0);
    for (const Host::BodyFace& face : body.faces) {
        const Coordinate3D place = FaceContours(body, face).at(0).at(0);
        volume += Dot(DoubledArea(body, face), Minus(place, origin)) / 6.0;
    }
    return volume;
}

double SurfaceArea(const Host::Body& body, std::int32_t surface) {
    double area = 0.0;
    for (const Host::BodyFace& face : body.faces) {
        area += face.surface == surface ? FaceArea(body, face) : 0.0;
    }
    return area;
}

int FaceCount(const Host::Body& body, std::int32_t surface) {
    return static_cast<int>(
        std::count_if(body.faces.begin(), body.faces.end(),
                      [&](const Host::BodyFace& face) { return face.surface == surface; }));
}

double Unevenness(const Host::Body& body) {
    double worst = 0.0;
    for (const Host::BodyFace& face : body.faces) {
        const Coordinate3D normal = DoubledArea(body, face);
        const auto contours = FaceContours(body, face);
        for (const auto& contour : contours) {
            for (const Coordinate3D& place : contour) {
                const double off = std::abs(Dot(Minus(place, contours[0][0]), normal));
                worst = std::max(worst, off / std::sqrt(Dot(normal, normal)));
            }
        }
    }
    return worst;
}

} // namespace Merivane::Tests
