#include "Workbench/Display/PenLook.hpp"

#include <array>
#include <cstddef>

#include "Workbench/Project/PenTable.hpp"

namespace Merivane::Workbench {

namespace {

constexpr std::array<PenLook, 20> Looks = {{
    {0.25, {0.00, 0.00, 0.00}}, {0.25, {0.00, 0.45, 0.15}}, {0.25, {0.75, 0.10, 0.10}},
    {0.25, {0.10, 0.25, 0.65}}, {0.18, {0.50, 0.30, 0.10}}, {0.18, {0.85, 0.45, 0.05}},
    {0.50, {0.00, 0.00, 0.00}}, {0.35, {0.00, 0.00, 0.00}}, {0.18, {0.00, 0.00, 0.00}},
    {0.13, {0.00, 0.00, 0.00}}, {0.13, {0.50, 0.50, 0.50}}, {0.18, {0.35, 0.35, 0.35}},
    {0.13, {0.70, 0.70, 0.70}}, {0.18, {0.00, 0.50, 0.60}}, {0.18, {0.45, 0.15, 0.55}},
    {0.18, {0.45, 0.45, 0.05}}, {0.13, {0.00, 0.35, 0.10}}, {0.13, {0.55, 0.05, 0.05}},
    {0.13, {0.05, 0.15, 0.45}}, {0.13, {0.85, 0.85, 0.85}},
}};

} // namespace

PenLook LookOfPen(std::int32_t pen) {
    return IsPen(pen) ? Looks[static_cast<std::size_t>(pen - 1) % Looks.size()] : Looks[0];
}

} // namespace Merivane::Workbench
