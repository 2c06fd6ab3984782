#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/LuminaireSections.hpp"
#include "Host/Library.hpp"
#include "Photometry/IesFile.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

/// A part as a test writes it.
struct SourcePart {
    std::string name = "Fonte";
    Host::PartType type = Host::PartType::Object;
    std::vector<Archicad::CopiedSection> sections;
    std::vector<Host::LibraryParameter> parameters;
    std::int32_t subtype = 120; ///< the host's own that it derives from
};

/// A session of the embedded host with the sample project, folders for documents and temporary
/// files of its own, and a library "Fontes" for parts that tests make.
class LibrarySession : public ::testing::Test {
protected:
    LibrarySession();

    std::filesystem::path Documents() const { return folder.Path() / "Documentos"; }
    std::filesystem::path OwnFolder() const { return Documents() / "Vantoro Library"; }
    std::filesystem::path SourceFolder() const { return folder.Path() / "Fontes"; }

    /// Begins the session anew, with the folders as they stand.
    void Open();

    /// Writes a part into "Fontes"; its index.
    std::int32_t MakePart(const SourcePart& source) const;

private:
    TemporaryFolder folder;
};

/// Names of the files in a folder, sorted; none of one that is not there.
std::vector<std::string> FilesIn(const std::filesystem::path& folder);

/// All sections of a part that can be read, but its parameters.
std::vector<Archicad::CopiedSection> SectionsOf(std::int32_t index);

/// A script of a part; "none" for one that it lacks.
std::string ScriptOf(std::int32_t index, const std::string& type);

std::vector<Host::LibraryParameter> ParametersOf(std::int32_t index);
std::vector<std::string> ParameterNamesOf(std::int32_t index);
Host::LibraryPart PartOf(std::int32_t index);

/// Photometry of a part, read back from its parameters; fails the running test when it has none.
Photometry::IesFile PhotometryOf(const std::vector<Host::LibraryParameter>& parameters);

/// What stands in the report window.
std::vector<std::string> ReportTexts();

/// A parameter of a part's own.
Host::LibraryParameter OwnParameter(const std::string& name, Host::ParameterType type,
                                    double number);

} // namespace Merivane::Tests
