#pragma once

#include <string>

#include "Workbench/Interface/AnswerScript.hpp"

/// The add-on at work on a project inside this program, which is its host.
namespace Merivane::Program {

/// What is told of the work while it runs.
struct HostOutput {
    bool silent = false;          ///< neither the log's lines nor progress
    bool alertsAreErrors = false; ///< alerts go to standard error, silent or not
};

/// Prepares the host for a command: the log's lines go to standard output, the progress of process
/// windows to standard error, and Ctrl-C cancels.
void PrepareHost(const HostOutput& output);

/// Reads the answers to dialogs of a file; no name gives none. Returns false with one Portuguese
/// sentence that names the file.
bool ReadAnswers(const std::string& file, Workbench::AnswerScript& answers, std::string& error);

/// Loads the add-on as its host does; `FreeData` unloads it. Returns false with one Portuguese
/// sentence.
bool LoadAddOn(std::string& error);

/// Opens the project of a file behind the add-on, which is told of it. Returns false with one
/// Portuguese sentence that names the file.
bool OpenProjectFile(const std::string& file, std::string& error);

/// Tells on standard error why scripts of library parts stopped so far, one sentence each; what
/// they had drawn until then is shown.
void TellScriptComplaints();

/// Writes the open project whole or not at all, and tells so unless `silent`. Returns false with
/// one Portuguese sentence that names the file, which is then as it was.
bool SaveProjectFile(const std::string& file, bool silent, std::string& error);

} // namespace Merivane::Program
