#include "Workbench/PartLibraries.hpp"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <system_error>
#include <utility>
#include <variant>

#include "Host/Session.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf16Length.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Project/ParameterRules.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {

namespace {

namespace fs = std::filesystem;

constexpr double RadiansPerDegree = 0.017453292519943295;

/// A report line; its format takes a percent sign doubled.
void Tell(const std::string& text) {
    std::string format = "Biblioteca: ";
    for (const char c : text) {
        format += c == '%' ? "%%" : std::string(1, c);
    }
    Host::WriteReport(format, false);
}

std::string Quoted(const std::wstring& path) {
    return '"' + Text::Narrow(path) + '"';
}

fs::path Normal(const std::wstring& path) {
    std::error_code code;
    const fs::path native = Text::NativePath(path);
    fs::path normal = fs::weakly_canonical(native, code);
    normal = code ? native.lexically_normal() : normal;
    return normal.has_filename() ? normal : normal.parent_path();
}

bool IsPartFile(const fs::directory_entry& entry) {
    std::error_code code;
    return entry.is_regular_file(code) &&
           Text::ToLower(entry.path().extension().string()) == Text::Narrow(PartFileEnding);
}

double NumberForFile(Host::ParameterType type, double number) {
    if (type != Host::ParameterType::Angle) {
        return number;
    }
    // Fifteen digits: 30 degrees that went through radians are 30 again.
    constexpr int digits = 15;
    double degrees = number / RadiansPerDegree;
    Text::ReadEntireNumber(Text::FormatGeneral(degrees, digits), degrees);
    return degrees;
}

double NumberFromFile(Host::ParameterType type, double number) {
    return type == Host::ParameterType::Angle ? number * RadiansPerDegree : number;
}

std::string TextForFile(const std::string& text) {
    constexpr std::size_t longest = 255;
    return Text::TruncateUtf16(Text::ShownLines(text), longest);
}

Host::LibraryParameter ParameterForFile(const Host::LibraryParameter& parameter) {
    Host::LibraryParameter stored = parameter;
    const bool isText = parameter.type == Host::ParameterType::String;
    stored.description = TextForFile(parameter.description);
    stored.text = isText && !parameter.isArray ? TextForFile(parameter.text) : std::string();
    stored.number =
        isText || parameter.isArray ? 0.0 : NumberForFile(parameter.type, parameter.number);
    stored.dim1 = parameter.isArray ? parameter.dim1 : 0;
    stored.dim2 = parameter.isArray && parameter.dim2 > 1 ? parameter.dim2 : 0;
    stored.texts.clear();
    stored.numbers.clear();
    if (parameter.isArray && isText) {
        std::transform(parameter.texts.begin(), parameter.texts.end(),
                       std::back_inserter(stored.texts), TextForFile);
    } else if (parameter.isArray) {
        for (const double number : parameter.numbers) {
            stored.numbers.push_back(NumberForFile(parameter.type, number));
        }
    }
    return stored;
}

/// The place of a library's part in the project that this file's takes: the one with its identity,
/// else the one of its name; the end for none.
std::size_t FindOwnPlace(const Project& project, const ProjectPart& read,
                         const std::set<std::size_t>& taken) {
    const auto fits = [&](std::size_t place, bool byGuid) {
        const ProjectPart& part = project.parts[place];
        return part.source != PartSource::Project && !taken.contains(place) &&
               part.isLamp == read.isLamp &&
               (byGuid ? part.mainGuid == read.mainGuid : part.name == read.name);
    };
    for (const bool byGuid : {true, false}) {
        for (std::size_t place = 0; place < project.parts.size(); ++place) {
            if (fits(place, byGuid)) {
                return place;
            }
        }
    }
    return project.parts.size();
}

/// True when another part that stands has the name.
bool IsNameTaken(const Project& project, const std::string& name, std::size_t place,
                 const std::set<std::size_t>& taken) {
    for (std::size_t other = 0; other < project.parts.size(); ++other) {
        const ProjectPart& part = project.parts[other];
        if (other != place && part.name == name &&
            (part.source == PartSource::Project || taken.contains(other))) {
            return true;
        }
    }
    return false;
}

const Host::LibraryParameter* FindParameter(const ProjectPart& part, const std::string& name) {
    const auto found = std::find_if(part.parameters.begin(), part.parameters.end(),
                                    [&name](const Host::LibraryParameter& parameter) {
                                        return Text::ToLower(parameter.name) == Text::ToLower(name);
                                    });
    return found == part.parameters.end() ? nullptr : &*found;
}

/// An element's own values as the part knows them: what was read without the part has no more than
/// its form. Returns how many do not fit.
std::size_t FitOwnValues(const ProjectPart& part, Parameters& own) {
    Parameters fitting;
    for (Host::LibraryParameter& value : own) {
        const Host::LibraryParameter* const known = FindParameter(part, value.name);
        const bool isText = value.type == Host::ParameterType::String;
        if (known && known->isArray == value.isArray &&
            (known->type == Host::ParameterType::String) == isText) {
            value.type = known->type;
            fitting.push_back(std::move(value));
        }
    }
    const std::size_t lost = own.size() - fitting.size();
    TakeParameters(part.parameters, fitting, own);
    return lost;
}

/// The same for all that is placed of parts that were read anew.
void FitPlacedValues(Project& project, const std::set<std::size_t>& places) {
    std::map<std::size_t, std::size_t> lost;
    for (ProjectElement& element : project.elements) {
        const auto* const data = std::get_if<Host::ObjectData>(&element.element.data);
        const auto place = data ? static_cast<std::size_t>(data->libraryIndex) - 1 : 0;
        if (data && places.contains(place)) {
            lost[place] += FitOwnValues(project.parts[place], element.memo.parameters);
        }
    }
    for (const auto& [place, count] : lost) {
        if (count > 0) {
            Tell("valores colocados da peça \"" + project.parts[place].name +
                 "\" que não servem mais e ficaram de fora: " + std::to_string(count));
        }
    }
}

void TakePartFile(Project& project, const std::wstring& file, std::set<std::size_t>& taken) {
    std::string bytes;
    std::string error = "não é possível abri-la";
    Parts::PartDocument document;
    std::vector<std::string> notes;
    if (!Text::ReadFileBytes(file, bytes) || !Parts::ReadPartXml(bytes, document, notes, error)) {
        Tell("a peça " + Quoted(file) + " ficou de fora: " + error);
        return;
    }
    const std::string name = Text::Narrow(Text::WidePath(Text::NativePath(file).stem()));
    ProjectPart part = MakeLibraryPart(name, file, std::move(document));
    const std::size_t place = FindOwnPlace(project, part, taken);
    if (IsNameTaken(project, name, place, taken)) {
        Tell("a peça " + Quoted(file) + " ficou de fora: já há outra com esse nome");
        return;
    }
    if (place == project.parts.size()) {
        project.parts.push_back(std::move(part));
    } else {
        project.parts[place] = std::move(part);
    }
    taken.insert(place);
}

void MarkMissing(Project& project, const std::set<std::size_t>& taken) {
    for (std::size_t place = 0; place < project.parts.size(); ++place) {
        ProjectPart& part = project.parts[place];
        if (part.source == PartSource::Project || taken.contains(place)) {
            continue;
        }
        part.source = PartSource::Missing;
        part.path.clear();
        part.document.reset();
        Tell("falta a peça \"" + part.name + "\"; o que está colocado dela guarda os seus valores");
    }
}

} // namespace

std::wstring FolderOfLibrary(const ProjectLibrary& library, const std::wstring& projectPath) {
    std::wstring wide = Text::Widen(library.path);
    const fs::path path = Text::NativePath(wide);
    if (path.is_absolute()) {
        return wide;
    }
    if (projectPath.empty()) {
        return {};
    }
    return Text::WidePath((Text::NativePath(projectPath).parent_path() / path).lexically_normal());
}

std::string StoredLibraryPath(const std::wstring& folder, const std::wstring& projectPath) {
    const fs::path full = Normal(folder);
    if (!projectPath.empty()) {
        const fs::path relative = full.lexically_relative(Normal(projectPath).parent_path());
        if (!relative.empty() && *relative.begin() != "..") {
            return Text::Narrow(Text::WidePath(relative));
        }
    }
    return Text::Narrow(Text::WidePath(full));
}

bool IsInsideFolder(const std::wstring& folder, const std::wstring& library) {
    const fs::path relative = Normal(folder).lexically_relative(Normal(library));
    return !library.empty() && !relative.empty() && *relative.begin() != "..";
}

bool IsReadOnlyFolder(const std::wstring& folder) {
    std::error_code code;
    const fs::file_status status = fs::status(Text::NativePath(folder), code);
    constexpr fs::perms writes =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return !code && fs::is_directory(status) && (status.permissions() & writes) == fs::perms::none;
}

std::vector<std::wstring> ListPartFiles(const std::wstring& folder) {
    std::vector<std::wstring> files;
    std::error_code code;
    fs::recursive_directory_iterator entry(Text::NativePath(folder),
                                           fs::directory_options::skip_permission_denied, code);
    for (; !code && entry != fs::recursive_directory_iterator(); entry.increment(code)) {
        if (IsPartFile(*entry)) {
            files.push_back(Text::WidePath(entry->path()));
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

Parts::ParameterSection MakeFileParameters(double sizeA, double sizeB,
                                           const std::vector<Host::LibraryParameter>& parameters) {
    Parts::ParameterSection section;
    section.sizeA.number = sizeA;
    section.sizeB.number = sizeB;
    section.parameters.reserve(parameters.size());
    for (const Host::LibraryParameter& parameter : parameters) {
        const bool isKept = parameter.type == Host::ParameterType::Dictionary;
        section.parameters.push_back(
            {ParameterForFile(parameter), isKept ? parameter.text : std::string()});
    }
    return section;
}

ProjectPart MakeLibraryPart(std::string name, std::wstring path, Parts::PartDocument document) {
    ProjectPart part;
    part.name = std::move(name);
    part.mainGuid = document.mainGuid;
    part.isLamp = document.type == Host::PartType::Lamp;
    part.sizeA = document.parameters.sizeA.number;
    part.sizeB = document.parameters.sizeB.number;
    part.source = PartSource::Library;
    part.path = std::move(path);
    for (const Parts::PartParameter& parameter : document.parameters.parameters) {
        Host::LibraryParameter& taken = part.parameters.emplace_back(parameter.value);
        taken.text = parameter.kept.empty() ? taken.text : parameter.kept;
        taken.number = NumberFromFile(taken.type, taken.number);
        for (double& number : taken.numbers) {
            number = NumberFromFile(taken.type, number);
        }
    }
    part.document = std::move(document);
    return part;
}

void ReadLibraries() {
    Session& session = CurrentSession();
    std::set<std::size_t> taken;
    for (const ProjectLibrary& library : session.project.libraries) {
        const std::wstring folder = FolderOfLibrary(library, session.projectPath);
        std::error_code code;
        if (folder.empty() || !fs::is_directory(Text::NativePath(folder), code)) {
            if (!library.embedded) {
                Tell("falta a pasta \"" + library.path + '"');
            }
            continue; // the embedded one is made when the project is saved
        }
        for (const std::wstring& file : ListPartFiles(folder)) {
            TakePartFile(session.project, file, taken);
        }
    }
    FitPlacedValues(session.project, taken);
    MarkMissing(session.project, taken);
    ForgetPartRuns(session.project);
}

std::vector<Host::Guid> AncestryBelow(const Project& project, const Host::Guid& parent) {
    for (const ProjectPart& part : project.parts) {
        if (!part.document) {
            continue;
        }
        const std::vector<Host::Guid>& ancestry = part.document->ancestry;
        const auto found = std::find(ancestry.begin(), ancestry.end(), parent);
        if (part.mainGuid == parent || found != ancestry.end()) {
            std::vector<Host::Guid> above(ancestry.begin(), found);
            above.push_back(parent);
            return above;
        }
    }
    return Parts::AncestryOfSubtype(parent);
}

} // namespace Merivane::Workbench
