#include "Host/FileChooser.hpp"
#include "Workbench/FileChoice.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

ErrorCode ChooseFile(std::string_view title, const FileFilter& filter, std::wstring& path) {
    if (const ErrorCode code = Workbench::CountCall("ChooseFile")) {
        return code;
    }
    return Workbench::AnswerFileChoice({std::string(title), filter, {}}, path) ? NoError
                                                                               : Cancelled;
}

} // namespace Merivane::Host
