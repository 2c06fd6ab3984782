#include <algorithm>
#include <numbers>
#include <string>
#include <vector>

#include "exemplos/OfficePlan.hpp"
#include "exemplos/OfficeProject.hpp"

namespace Merivane::Examples {

namespace {

using Host::ElementType;
using Host::LibraryParameter;

constexpr double Quarter = std::numbers::pi / 2.0;
std::int32_t PartNamed(const ProjectBuilder& builder, const std::string& name) {
    const auto& parts = builder.project.parts;
    const auto found =
        std::find_if(parts.begin(), parts.end(),
                     [&name](const Workbench::ProjectPart& part) { return part.name == name; });
    return static_cast<std::int32_t>(found - parts.begin()) + 1;
}

// Where a luminaire stands, and how it differs from its part.
struct Placing {
    std::int32_t part = 0;
    std::int16_t floorIndex = 0;
    double level = 0.0;
    double angle = 0.0;
    std::string circuit;
};

class Placer {
public:
    explicit Placer(ProjectBuilder& toBuilder) : builder(toBuilder) {}

    /// The reference lasts until the next one is placed.
    Workbench::ProjectElement& Put(const Placing& placing, Host::Coordinate position) {
        const Workbench::ProjectPart& part =
            builder.project.parts.at(static_cast<std::size_t>(placing.part) - 1);
        Host::ObjectData object;
        object.libraryIndex = placing.part;
        object.position = position;
        object.level = placing.level;
        object.angle = placing.angle;
        object.sizeA = part.sizeA;
        object.sizeB = part.sizeB;
        Workbench::ProjectElement& added = AddElement(
            builder, ElementType::Lamp, {LayerOf(builder, "Luminárias"), placing.floorIndex});
        added.element.data = object;
        Override(added, part, "mvCircuit").text = placing.circuit;
        return added;
    }

    void PutGrid(const Placing& placing, const std::vector<double>& xs,
                 const std::vector<double>& ys) {
        for (const double y : ys) {
            for (const double x : xs) {
                Put(placing, {x, y});
            }
        }
    }

    /// The part's parameter as the element's own.
    LibraryParameter& Override(Workbench::ProjectElement& element, const std::string& name) {
        const auto& object = std::get<Host::ObjectData>(element.element.data);
        return Override(element,
                        builder.project.parts.at(static_cast<std::size_t>(object.libraryIndex) - 1),
                        name);
    }

private:
    static LibraryParameter& Override(Workbench::ProjectElement& element,
                                      const Workbench::ProjectPart& part, const std::string& name) {
        for (const LibraryParameter& parameter : part.parameters) {
            if (parameter.name == name) {
                element.memo.parameters.push_back(parameter);
            }
        }
        return element.memo.parameters.back();
    }

    ProjectBuilder& builder;
};

} // namespace

void AddOfficeLuminaires(ProjectBuilder& builder) {
    const std::int32_t panel = PartNamed(builder, "Painel Antiofuscante 600 Alto Fluxo");
    const std::int32_t downlight = PartNamed(builder, "Downlight Roda 150");
    const std::int32_t linear = PartNamed(builder, "Linear Asa 1200");
    const std::int32_t pendant = PartNamed(builder, "Pendente Duplo 1500");
    const std::int32_t washer = PartNamed(builder, "Lavador de Parede 600");

    Placer placer(builder);
    const Placing office = {panel, 0, CeilingHeight, 0.0, "C1"};
    placer.PutGrid(office, {1.3, 3.6, 5.9, 8.3, 10.8}, {1.5, 4.5});
    placer.PutGrid(office, {1.3, 5.7}, {7.2});
    placer.PutGrid(office, {1.3, 3.5, 5.7}, {8.9});
    Workbench::ProjectElement& off = placer.Put(office, {3.5, 7.2});
    placer.Override(off, "mvLightOn").number = 0.0;

    placer.PutGrid({pendant, 0, 2.3, 0.0, "C2"}, {8.15, 10.85}, {6.95, 8.95});

    placer.PutGrid({downlight, 0, CeilingHeight, 0.0, "C3"}, {12.54}, {1.3, 3.7, 6.1, 8.5});

    const Placing walls = {washer, 0, 2.8, Quarter, "C3"}; // towards the hall's west wall
    placer.Put(walls, {13.35, 4.4});
    // A table that was cut off: the angles tell of more values than there are.
    Workbench::ProjectElement& broken = placer.Put(walls, {13.35, 6.0});
    LibraryParameter& table = placer.Override(broken, "mvCandela");
    table.dim1 -= 1;
    table.numbers.resize(static_cast<std::size_t>(table.dim1) *
                         static_cast<std::size_t>(table.dim2));

    const Placing upper = {linear, 1, 2.6, Quarter, "C4"};
    placer.PutGrid(upper, {2.4, 6.4, 10.4}, {1.4});
    placer.Put(upper, {6.4, 3.6});
    Workbench::ProjectElement& dimmed = placer.Put(upper, {2.4, 3.6});
    placer.Override(dimmed, "mvDimming").number = 0.6;
    Workbench::ProjectElement& alsoOff = placer.Put(upper, {10.4, 3.6});
    placer.Override(alsoOff, "mvLightOn").number = 0.0;

    const Placing hall = {panel, 1, CeilingHeight, 0.0, "C5"};
    placer.PutGrid(hall, {6.0, 8.8, 11.6}, {6.4});
    placer.PutGrid(hall, {6.0, 8.8}, {8.6});
    Workbench::ProjectElement& newer = placer.Put(hall, {11.6, 8.6});
    placer.Override(newer, "mvContractVersion").number = 8.0;

    const Placing void2 = {downlight, 1, RoomHeight, 0.0, "C6"};
    placer.Put(void2, {16.6, 3.0});
    placer.Put(void2, {16.6, 7.0}).element.header.layer = LayerOf(builder, "Estudo anterior");
}

} // namespace Merivane::Examples
