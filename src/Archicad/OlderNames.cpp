#include "Archicad/OlderNames.hpp"

#include <cstddef>

#include "AddOn/RunLog/RunLog.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

using Host::AttributeIndex;
using Host::AttributeType;
using Host::ErrorCode;

constexpr std::string_view Word = "Vantoro";
constexpr std::string_view OlderWord = "Merivane";
constexpr std::string_view AfterWord = " - "; // in the names of layers

// The host keeps names in 256 bytes, with a zero at the end.
constexpr std::size_t LongestName = 255;

std::string WithOlderWord(std::string_view name) {
    std::string older(name);
    for (std::size_t at = older.find(Word); at != std::string::npos;
         at = older.find(Word, at + OlderWord.size())) {
        older.replace(at, Word.size(), OlderWord);
    }
    return older;
}

template <typename Record, typename Get, typename Change>
ErrorCode RenameRecord(AttributeIndex index, const std::string& name, Get get, Change change) {
    Record record;
    if (const ErrorCode code = get(index, record)) {
        return code;
    }
    record.name = name;
    return change(index, record);
}

ErrorCode Rename(AttributeType type, AttributeIndex index, const std::string& name) {
    switch (type) {
    case AttributeType::Layer:
        return RenameRecord<Host::Layer>(index, name, Host::GetLayer, Host::ChangeLayer);
    case AttributeType::LineType:
        return RenameRecord<Host::LineType>(index, name, Host::GetLineType, Host::ChangeLineType);
    case AttributeType::LayerCombination:
        return RenameRecord<Host::LayerCombination>(index, name, Host::GetLayerCombination,
                                                    Host::ChangeLayerCombination);
    case AttributeType::Fill:
    case AttributeType::Surface:
        break; // the add-on names none of these in a way that changed
    }
    return Host::NotSupported;
}

// Finds the older attribute, whose name is not to be taken away from a newer one, and renames it.
ErrorCode RenameIfOlder(AttributeType type, const std::string& older, const std::string& name) {
    AttributeIndex index;
    if (const ErrorCode code = Host::FindAttribute(type, name, index); code != Host::BadName) {
        return code;
    }
    if (const ErrorCode code = Host::FindAttribute(type, older, index)) {
        return code == Host::BadName ? Host::NoError : code;
    }
    if (const ErrorCode code = Rename(type, index, name)) {
        return code;
    }
    Commands::ReportLine("atributo renomeado de \"" + older + "\" para \"" + name + "\"");
    return Host::NoError;
}

} // namespace

std::string CutAttributeName(std::string_view name) {
    return Text::TruncateUtf8(name, LongestName);
}

bool IsOwnLayerName(std::string_view name) {
    for (const std::string_view word : {Word, OlderWord}) {
        if (name.starts_with(word) && name.substr(word.size()).starts_with(AfterWord)) {
            return true;
        }
    }
    return false;
}

void RenameOlderAttribute(Host::AttributeType type, std::string_view name) {
    if (name.find(Word) == std::string_view::npos) {
        return;
    }
    const std::string older = CutAttributeName(WithOlderWord(name));
    Commands::CheckError("renomear " + older, RenameIfOlder(type, older, CutAttributeName(name)));
}

} // namespace Merivane::Archicad
