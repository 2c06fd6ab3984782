#include "AddOn/AddOnState.hpp"

namespace Merivane {

AddOnState& CurrentAddOnState() {
    static AddOnState state;
    return state;
}

} // namespace Merivane
