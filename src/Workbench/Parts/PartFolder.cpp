#include "Workbench/Parts/PartFolder.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Parts/XmlPieces.hpp"

namespace Merivane::Workbench::Parts {

namespace {

namespace fs = std::filesystem;

/// A text file: with a byte order mark, as the converter has them.
PartFile TextFile(std::string path, std::string_view text) {
    return {std::move(path), std::string(ByteOrderMark) + std::string(text)};
}

PartFile XmlFile(std::string path, const std::string& xml) {
    return TextFile(std::move(path), std::string(XmlDeclaration) + xml);
}

/// A script has one file, so only its first section has a place.
bool HasFile(const TextSection& section) {
    const TextSectionKind* const kind = FindTextSectionKind(section.type);
    return kind && (!IsScript(*kind) || section.subIdent == 0);
}

bool IsInside(const PictureSection& picture) {
    return !picture.bytes.empty();
}

std::string DeclaredSection(std::string_view element, std::int32_t version, std::int32_t subIdent) {
    return "\t<" + std::string(element) + SectionAttributes(version, subIdent) + "/>\n";
}

std::string DeclaredTexts(const PartDocument& document, bool scripts) {
    std::string xml;
    for (const TextSection& section : document.texts) {
        const TextSectionKind* const kind = FindTextSectionKind(section.type);
        if (HasFile(section) && IsScript(*kind) == scripts) {
            xml += DeclaredSection(kind->element, kind->version, section.subIdent);
        }
    }
    return xml;
}

std::string DeclaredPictures(const PartDocument& document) {
    std::string xml;
    for (const PictureSection& picture : document.pictures) {
        if (IsInside(picture)) {
            xml += std::string("\t<") + (picture.isPreview ? "Picture" : "GDLPict") +
                   " MIME=" + AttributeText(picture.mime) +
                   " Name=" + AttributeText(PictureFileName(picture)) +
                   SectionAttributes(PictureVersion, picture.subIdent, PictureFlags(picture)) +
                   "/>\n";
        }
    }
    return xml;
}

std::string PartDataXml(const PartDocument& document) {
    const auto line = [](std::string_view element, const std::string& value) {
        return "\t\t<" + std::string(element) + '>' + value + "</" + std::string(element) + ">\n";
    };
    std::string xml =
        "<LibpartData Owner=\"" + std::to_string(document.owner) + "\" Signature=\"" +
        std::to_string(document.signature) + "\" Version=\"" + std::to_string(document.version) +
        "\">\n\t<Identification>\n" + line("MainGUID", BareGuid(document.mainGuid)) +
        line("IsPlaceable", TrueOrFalse(document.isPlaceable)) +
        line("IsArchivable", TrueOrFalse(document.isArchivable)) +
        line("MigrationValue", Text::ShownText(document.migration)) +
        line("IsTemplate", TrueOrFalse(document.isTemplate)) + "\t</Identification>\n";
    xml += DeclaredSection("Ancestry", AncestryVersion, 0);
    xml += DeclaredSection("CalledMacros", MacrosVersion, 0);
    xml += DeclaredTexts(document, true);
    xml += document.hasParameters ? DeclaredSection("ParamSection", ParametersVersion, 0) : "";
    xml += document.hasCopyright ? DeclaredSection("Copyright", CopyrightVersion, 0) : "";
    xml += DeclaredTexts(document, false) + DeclaredPictures(document);
    return xml + "</LibpartData>\n";
}

std::string PartDocsXml(const PartDocument& document) {
    std::string xml = "<libpartdocs>\n";
    xml += document.hasCopyright ? CopyrightXml(document.copyright) : std::string();
    for (const TextSection& section : document.texts) {
        const TextSectionKind* const kind = FindTextSectionKind(section.type);
        xml += kind && !IsScript(*kind) ? TextXml(section) : std::string();
    }
    return xml + "</libpartdocs>\n";
}

std::string ParameterListFile(const ParameterSection& section) {
    return "<ParamSection>\n" + ParameterHeaderXml(section) +
           ParameterListXml(section, SectionAttributes(ParametersVersion, 0)) + "</ParamSection>\n";
}

std::string ElementName(const std::string& xml) {
    return xml.substr(1, xml.find_first_of(" \t\r\n/>", 1) - 1);
}

bool WriteFiles(const std::vector<PartFile>& files, const fs::path& folder) {
    std::error_code code;
    for (const PartFile& file : files) {
        const fs::path path = folder / file.path;
        fs::create_directories(path.parent_path(), code);
        if (code || !Text::WriteFileFlushed(Text::WidePath(path), file.bytes)) {
            return false;
        }
    }
    return true;
}

/// Puts `made` in the place of `target`, which may be there.
bool TakePlace(const fs::path& made, const fs::path& target) {
    std::error_code code;
    if (!fs::exists(target, code)) {
        fs::rename(made, target, code);
        return !code;
    }
    fs::path old = target;
    old += ".antigo";
    fs::remove_all(old, code);
    fs::rename(target, old, code);
    if (code) {
        return false;
    }
    fs::rename(made, target, code);
    const bool good = !code;
    if (good) {
        fs::remove_all(old, code);
    } else {
        fs::rename(old, target, code);
    }
    return good;
}

/// Only what is a part's folder is replaced.
bool IsFreeOrPart(const fs::path& folder) {
    std::error_code code;
    return !fs::exists(folder, code) || fs::exists(folder / "libpartdata.xml", code) ||
           (fs::is_directory(folder, code) && fs::is_empty(folder, code));
}

} // namespace

std::vector<PartFile> MakePartFiles(const PartDocument& document) {
    std::vector<PartFile> files = {
        XmlFile("libpartdata.xml", PartDataXml(document)),
        XmlFile("ancestry.xml", "<Ancestry>\n" + AncestryLines(document) + "</Ancestry>\n"),
        XmlFile("calledmacros.xml",
                document.macros.empty()
                    ? "<CalledMacros/>\n"
                    : "<CalledMacros>\n" + MacroLines(document.macros) + "</CalledMacros>\n"),
        XmlFile("libpartdocs.xml", PartDocsXml(document))};
    if (document.hasParameters) {
        files.push_back(XmlFile("paramlist.xml", ParameterListFile(document.parameters)));
    }
    for (const TextSection& section : document.texts) {
        const TextSectionKind* const kind = FindTextSectionKind(section.type);
        if (HasFile(section) && IsScript(*kind)) {
            files.push_back(
                TextFile("scripts/" + std::string(kind->file), Text::ShownLines(section.text)));
        }
    }
    for (const PictureSection& picture : document.pictures) {
        if (IsInside(picture)) {
            files.push_back({"images/" + PictureFileName(picture), picture.bytes});
        }
    }
    return files;
}

std::vector<std::string> LeftOutOfXml(const PartDocument& document) {
    std::vector<std::string> names;
    for (const CustomSection& section : document.custom) {
        names.push_back("a seção " + Text::ShownText(section.type));
    }
    for (const PictureSection& picture : document.pictures) {
        if (!IsInside(picture)) {
            names.push_back("a imagem " + Text::ShownText(picture.path) + ", que não está na peça");
        }
    }
    return names;
}

std::vector<std::string> LeftOutOfFolder(const PartDocument& document) {
    std::vector<std::string> names = LeftOutOfXml(document);
    for (const TextSection& section : document.texts) {
        if (!HasFile(section)) {
            names.push_back("a seção " + section.type + " de número " +
                            std::to_string(section.subIdent));
        }
    }
    for (const std::string& xml : document.kept) {
        names.push_back("o elemento " + ElementName(xml));
    }
    return names;
}

bool WritePartFolder(const PartDocument& document, const std::wstring& folder, std::string& error) {
    const fs::path target = Text::NativePath(folder);
    fs::path made = target;
    made += ".parcial";
    const std::string name = '"' + Text::Narrow(folder) + '"';
    if (!IsFreeOrPart(target)) {
        error = name + " já existe e não é a pasta de uma peça";
        return false;
    }
    std::error_code code;
    fs::remove_all(made, code);
    if (!WriteFiles(MakePartFiles(document), made) || !TakePlace(made, target)) {
        fs::remove_all(made, code);
        error = "a pasta " + name + " não pode ser gravada: o disco a recusou";
        return false;
    }
    return true;
}

} // namespace Merivane::Workbench::Parts
