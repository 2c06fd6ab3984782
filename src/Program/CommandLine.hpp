#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Program/CalculateArguments.hpp"
#include "Program/PartArguments.hpp"

namespace Merivane::Program {

/// Exit statuses of the program.
inline constexpr int StatusDone = 0;
inline constexpr int StatusFailed = 1;
inline constexpr int StatusWrongUse = 2;
inline constexpr int StatusNotMet = 3; ///< done, and a requirement is not met; only where asked
inline constexpr int StatusCancelled = 130;

/// `vantoro simular`: a scene document to values and pictures.
struct SimulateArguments {
    std::string sceneFile;
    std::string outputFolder;
    std::string workFolder; ///< empty = one of its own, removed unless the run fails
    double scale = 0.0;     ///< scale denominator of the plans; 0 = chosen so that they fit
    std::uint32_t colorScale = 0;
    double valueSpacing = 0.0; ///< distance of written values [m]; 0 = none
    bool verify = false;       ///< exit status 3 when a required row fails
    bool explain = false;      ///< tell each observer's glare luminaire by luminaire
    bool repeatable = false;
    bool silent = false;
    bool json = false;
};

/// `vantoro ies`: what photometric files hold.
struct IesArguments {
    std::vector<std::string> files;
    bool curve = false;
    std::string outputFolder = "."; ///< of the curves
    bool json = false;
};

/// `vantoro ugr`: the glare table of one luminaire model.
struct UgrArguments {
    std::string file;
    double height = 2.0;      ///< H, from the eye to the photometric centre [m]
    std::string outputFolder; ///< of table and sheet; empty = none are written
    bool explain = false;
    bool json = false;
};

/// `vantoro atividades`: the table of activities, searched.
struct TasksArguments {
    std::string text; ///< empty = the whole table
    bool json = false;
};

/// `vantoro verificar-radiance`: the installation check.
struct CheckRadianceArguments {};

/// `vantoro comandos`: the menu of the add-on.
struct ListCommandsArguments {};

/// `vantoro executar`: a command of that menu, on a project.
struct RunArguments {
    std::int16_t command = 0; ///< number
    std::string projectFile;  ///< empty = none; the command needs none then
    std::string answerFile;   ///< answers to its dialogs; empty = they are accepted as they stand
    bool showDialogs = false; ///< tell each dialog's last state
    std::string imageFolder;  ///< of a picture of each dialog; empty = none are drawn
    std::string saveAs;       ///< empty = the project's own file, where the command changed it
};

/// `vantoro desenhar`: the windows of a project as drawings.
struct DrawArguments {
    std::string projectFile;
    std::string window;       ///< name or reference of a window; empty = see below
    std::optional<int> floor; ///< the plan of this floor; with `axonometry`, the view of it
    bool axonometry = false;  ///< the view of the model; without any of the three, all windows
    bool symbols = false;     ///< luminaires as symbols, also where the project shows their shapes
    std::string outputFolder = "."; ///< of the drawings
    double scale = 0.0;             ///< denominator; 0 = each window's own
};

/// `vantoro catalogo verificar`: every file of a catalogue held to its index.
struct CheckCatalogArguments {
    std::string address; ///< folder or web address
    bool json = false;
};

/// `vantoro catalogo listar`: the products of a catalogue, searched.
struct ListCatalogArguments {
    std::string address;
    std::vector<std::string> words; ///< none = all products
    std::string manufacturer;       ///< empty = of any
    bool json = false;
};

/// What was asked for on the command line; the first alternative when nothing is left to do.
using Request = std::variant<std::monostate, SimulateArguments, IesArguments, UgrArguments,
                             TasksArguments, CheckRadianceArguments, ListCommandsArguments,
                             RunArguments, DrawArguments, CalculateArguments, CheckCatalogArguments,
                             ListCatalogArguments, ShowPartArguments, ExportPartArguments>;

/// How reading the command line ended.
struct CommandLineResult {
    Request request;
    int status = StatusDone; ///< exit status when there is no request
    std::string output;      ///< help or version, for standard output
    std::string error;       ///< one Portuguese sentence and a hint, for standard error
};

/// Reads the arguments of the program, `arguments[0]` being its own name.
CommandLineResult ReadCommandLine(const std::vector<std::string>& arguments);

} // namespace Merivane::Program
