#pragma once

#include "Program/CommandLine.hpp"

namespace Merivane::Program {

/// Each does its whole job, writes to standard output and standard error, and returns the exit
/// status of the program.
int CalculateCommand(const CalculateArguments& arguments);
int SimulateCommand(const SimulateArguments& arguments);
int IesCommand(const IesArguments& arguments);
int UgrCommand(const UgrArguments& arguments);
int TasksCommand(const TasksArguments& arguments);
int CheckRadianceCommand(const CheckRadianceArguments& arguments);
int ListCommandsCommand(const ListCommandsArguments& arguments);
int RunCommand(const RunArguments& arguments);
int DrawCommand(const DrawArguments& arguments);
int CheckCatalogCommand(const CheckCatalogArguments& arguments);
int ListCatalogCommand(const ListCatalogArguments& arguments);
int ShowPartCommand(const ShowPartArguments& arguments);
int ExportPartCommand(const ExportPartArguments& arguments);

} // namespace Merivane::Program
