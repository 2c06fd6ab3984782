#include "Archicad/ProcessWindow.hpp"

#include "AddOn/RunLog/RunLog.hpp"
#include "Host/Session.hpp"

namespace Merivane::Archicad {

ProcessWindow::ProcessWindow(std::string_view title, std::int32_t phases)
    : open(Commands::CheckError("Abrir a janela de progresso",
                                Host::OpenProcessWindow(title, phases)) == Host::NoError) {}

ProcessWindow::~ProcessWindow() {
    if (open) {
        Host::CloseProcessWindow();
    }
}

void ProcessWindow::BeginPhase(std::string_view title, std::int32_t highest) {
    shown = -1;
    if (open) {
        Host::BeginProcessPhase(title, highest);
    }
}

void ProcessWindow::Show(std::int32_t value) {
    if (open && value != shown) {
        Host::SetProcessValue(value);
    }
    shown = value;
}

bool ProcessWindow::IsCancelled() const {
    return open && Host::CheckProcessCancelled() == Host::Cancelled;
}

} // namespace Merivane::Archicad
