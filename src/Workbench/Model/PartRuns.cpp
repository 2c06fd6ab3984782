#include "Workbench/Model/PartRuns.hpp"

#include <algorithm>
#include <bit>
#include <memory>
#include <numbers>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "Text/Ascii.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/ScriptSurfaces.hpp"
#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Project/ParameterRules.hpp"

namespace Merivane::Workbench {

namespace {

constexpr double DegreesPerRadian = 180.0 / std::numbers::pi;
constexpr std::size_t RunawayShapes = 100'000; // of a script that stopped
constexpr std::int32_t PlanView = 2;           // GLOB_VIEW_TYPE and GLOB_CONTEXT
constexpr std::int32_t ModelView = 3;          // GLOB_VIEW_TYPE and GLOB_CONTEXT

PartRuns& RunsOf(const Project& project) {
    if (!project.runs.kept) {
        project.runs.kept = std::make_shared<PartRuns>();
    }
    return *project.runs.kept;
}

// The text of a part's script by the host's four letters, empty for none.
std::string ScriptOf(const ProjectPart& part, std::string_view type) {
    const std::string* const text = part.document ? Parts::FindText(*part.document, type) : nullptr;
    return text ? *text : std::string();
}

ScriptPart PreparePart(const ProjectPart& part, const ProjectElement* element = nullptr) {
    ScriptPart prepared;
    prepared.name = part.name;
    prepared.master = ScriptOf(part, "1DSC");
    prepared.plan = ScriptOf(part, "2DSC");
    prepared.model = ScriptOf(part, "3DSC");
    prepared.parameter = ScriptOf(part, "VLSC");
    prepared.sizeA = part.sizeA;
    prepared.sizeB = part.sizeB;
    prepared.parameters = part.parameters;
    if (element) {
        const auto& object = std::get<Host::ObjectData>(element->element.data);
        prepared.sizeA = object.sizeA;
        prepared.sizeB = object.sizeB;
        prepared.parameters = MergeParameters(part.parameters, element->memo.parameters);
    }
    return prepared;
}

// What a part's scripts can see of where its object stands; nothing where they do not look.
bool LooksAtItsPlace(const ProjectPart& part) {
    for (const std::string_view type : {"1DSC", "2DSC", "3DSC"}) {
        const std::string upper = Text::ToUpper(ScriptOf(part, type));
        if (upper.find("SYMB_") != std::string::npos || upper.find("CALL") != std::string::npos ||
            upper.find("GLOB_ELEVATION") != std::string::npos) {
            return true;
        }
    }
    return false;
}

// The identity of a run: two objects with the same key draw the same.
struct RunKey {
    std::string bytes;

    void Add(double number) {
        const auto bits = std::bit_cast<std::uint64_t>(number);
        for (int byte = 0; byte < 8; ++byte) {
            bytes.push_back(static_cast<char>((bits >> (8 * byte)) & 0xFFU));
        }
    }

    void Add(std::string_view text) {
        Add(static_cast<double>(text.size()));
        bytes.append(text);
    }

    void Add(const Host::LibraryParameter& parameter) {
        Add(parameter.name);
        Add(parameter.number);
        Add(parameter.text);
        Add(static_cast<double>(parameter.dim1));
        Add(static_cast<double>(parameter.dim2));
        for (const double number : parameter.numbers) {
            Add(number);
        }
        for (const std::string& text : parameter.texts) {
            Add(text);
        }
    }
};

RunKey KeyOf(const Project& project, const ProjectPart& part, const ProjectElement& element) {
    const auto& object = std::get<Host::ObjectData>(element.element.data);
    RunKey key;
    key.Add(static_cast<double>(&part - project.parts.data()));
    key.Add(object.sizeA);
    key.Add(object.sizeB);
    for (const Host::LibraryParameter& parameter : element.memo.parameters) {
        key.Add(parameter);
    }
    if (LooksAtItsPlace(part)) {
        for (const double number : {object.position.x, object.position.y, object.level,
                                    object.angle, object.mirrored ? 1.0 : 0.0,
                                    static_cast<double>(element.element.header.floorIndex)}) {
            key.Add(number);
        }
    }
    return key;
}

std::int32_t FindAttribute(const Project& project, ScriptAttribute kind, std::string_view name) {
    const auto findIn = [name](const auto& table) {
        for (const auto& [number, record] : table) {
            if (record.name == name) {
                return number;
            }
        }
        return 0;
    };
    switch (kind) {
    case ScriptAttribute::LineType:
        return findIn(project.lineTypes);
    case ScriptAttribute::Fill:
        return findIn(project.fills);
    case ScriptAttribute::Surface:
        return findIn(project.surfaces);
    }
    return 0;
}

const ScriptPart* FindMacro(const Project& project, std::string_view name) {
    const std::string wanted = Text::ToUpper(name);
    std::map<std::string, ScriptPart>& macros = RunsOf(project).macros;
    const auto known = macros.find(wanted);
    if (known != macros.end()) {
        return &known->second;
    }
    for (const ProjectPart& part : project.parts) {
        if (part.document && Text::ToUpper(part.name) == wanted) {
            return &macros.emplace(wanted, PreparePart(part)).first->second;
        }
    }
    return nullptr;
}

// How the project's plans show luminaires: the host keeps that in one object for all scripts.
std::optional<ScriptValue> LibraryGlobal(const Project& project, std::string_view object,
                                         std::string_view variable) {
    constexpr double LightingSymbol = 1.0;
    constexpr double OwnShape = 3.0;
    if (Text::ToUpper(object) == "OBJECTS_MVOSETTINGS" &&
        Text::ToUpper(variable) == "IFIXTURESYMBOL") {
        return NumberValue(project.lightingSymbols ? LightingSymbol : OwnShape);
    }
    return std::nullopt;
}

void AnswerRequests(const Project& project, const Host::ElementHeader& header,
                    ScriptEnvironment& environment) {
    environment.requests["NAME_OF_PROGRAM"] = {TextValue("Vantoro")};
    environment.requests["NAME_OF_PLAN"] = {TextValue(project.name)};
    std::vector<ScriptValue> stories = {NumberValue(static_cast<double>(project.stories.size()))};
    for (const Host::Story& story : project.stories) {
        const auto index = static_cast<double>(story.index);
        stories.push_back(NumberValue(index));
        stories.push_back(TextValue(story.name));
        stories.push_back(NumberValue(story.level));
        stories.push_back(NumberValue(story.height));
        if (story.index == header.floorIndex) {
            environment.requests["HOME_STORY"] = {NumberValue(index), TextValue(story.name)};
        }
        if (story.index == project.activeFloor) {
            environment.requests["STORY"] = {NumberValue(index), TextValue(story.name)};
        }
    }
    environment.requests["STORY_INFO"] = std::move(stories);
}

ScriptEnvironment EnvironmentOf(const Project& project, const ProjectElement& element,
                                std::int32_t view, double scale) {
    const auto& object = std::get<Host::ObjectData>(element.element.data);
    const Host::ElementHeader& header = element.element.header;
    const double elevation = StoryLevel(project, header.floorIndex) + object.level;
    ScriptEnvironment environment;
    environment.scale = scale;
    environment.viewType = view;
    environment.context = view;
    environment.symbolRotation = object.angle * DegreesPerRadian;
    environment.symbolMirrored = object.mirrored;
    environment.symbolPosition = {object.position.x, object.position.y, elevation};
    environment.storyElevation = elevation;
    environment.findAttribute = [&project](ScriptAttribute kind, std::string_view name) {
        return FindAttribute(project, kind, name);
    };
    environment.findMacro = [&project](std::string_view name) { return FindMacro(project, name); };
    environment.libraryGlobal = [&project](std::string_view owner, std::string_view variable) {
        return LibraryGlobal(project, owner, variable);
    };
    AnswerRequests(project, header, environment);
    return environment;
}

bool IsRunaway(const PartModel& model) {
    std::size_t faces = model.wires.size() + model.lights.size() + model.hotspots.size();
    for (const FacedBody& body : model.bodies) {
        faces += body.faces.size();
    }
    return faces > RunawayShapes;
}

bool IsRunaway(const PlanSymbolDrawing& symbol) {
    return symbol.shapes.size() > RunawayShapes;
}

// What a script that stopped had made until then is shown, but not what an endless loop heaped up:
// each placed object would have it again.
template <typename Made>
void KeepError(PartRuns& runs, const std::optional<ScriptError>& error, Made& made) {
    if (!error) {
        return;
    }
    if (IsRunaway(made)) {
        made = {};
    }
    const std::string sentence = DescribeScriptError(*error);
    if (std::find(runs.complaints.begin(), runs.complaints.end(), sentence) ==
        runs.complaints.end()) {
        runs.complaints.push_back(sentence);
    }
}

// From a run's own numbers of surfaces to those of the project.
void NumberSurfaces(const Project& project, PartModel& model) {
    std::vector<Host::ModelSurface>& known = RunsOf(project).surfaces;
    std::vector<std::int32_t> numbers;
    for (const Host::ModelSurface& surface : model.surfaces) {
        auto found = std::find(known.begin(), known.end(), surface);
        if (found == known.end()) {
            found = known.insert(known.end(), surface);
        }
        numbers.push_back(FirstRunSurface(project) +
                          static_cast<std::int32_t>(found - known.begin()));
    }
    for (FacedBody& body : model.bodies) {
        for (ContouredFace& face : body.faces) {
            const std::int32_t own = face.surface - Host::FirstScriptSurface;
            if (own >= 0) {
                const auto place = static_cast<std::size_t>(own);
                face.surface = place < numbers.size() ? numbers[place] : -1;
            }
        }
    }
}

} // namespace

bool HasModelScript(const ProjectPart& part) {
    return !ScriptOf(part, "3DSC").empty();
}

bool HasPlanScript(const ProjectPart& part) {
    return !ScriptOf(part, "2DSC").empty();
}

const PartModel& ModelOfObject(const Project& project, const ProjectPart& part,
                               const ProjectElement& element) {
    PartRuns& runs = RunsOf(project);
    const auto [place, isNew] = runs.models.try_emplace(KeyOf(project, part, element).bytes);
    PartModel& model = place->second;
    if (isNew) {
        const auto error =
            RunModelScript(PreparePart(part, &element),
                           EnvironmentOf(project, element, ModelView, project.planScale), model);
        KeepError(runs, error, model);
        NumberSurfaces(project, model);
    }
    return model;
}

const PlanSymbolDrawing& SymbolOfObject(const Project& project, const ProjectPart& part,
                                        const ProjectElement& element, double scale) {
    PartRuns& runs = RunsOf(project);
    RunKey key = KeyOf(project, part, element);
    key.Add(scale);
    key.Add(project.lightingSymbols ? 1.0 : 0.0);
    const auto [place, isNew] = runs.symbols.try_emplace(std::move(key.bytes));
    PlanSymbolDrawing& symbol = place->second;
    if (isNew) {
        const auto error = RunPlanScript(PreparePart(part, &element),
                                         EnvironmentOf(project, element, PlanView, scale), symbol);
        KeepError(runs, error, symbol);
    }
    return symbol;
}

std::vector<std::string> ScriptComplaints(const Project& project) {
    return RunsOf(project).complaints;
}

void ForgetPartRuns(const Project& project) {
    project.runs.kept.reset();
}

} // namespace Merivane::Workbench
