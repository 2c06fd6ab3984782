#include "Archicad/AddOnFolder.hpp"

#include "Host/Session.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Archicad {

std::wstring AddOnFolder() {
    std::wstring own;
    if (Host::GetOwnLocation(own) != Host::NoError) {
        return {};
    }
    return Text::WidePath(Text::NativePath(own).parent_path());
}

} // namespace Merivane::Archicad
