#include "Gdl/HiddenLightParameters.hpp"

namespace Merivane::Photometry {

const std::vector<std::string>& HiddenLightParameters() {
    static const std::vector<std::string> Names = {
        "gs_light_switch",
        "gs_color_red",
        "gs_color_green",
        "gs_color_blue",
        "gs_light_intensity",
        "gs_2D_representation",
        "gs_cont_pen",
        "gs_fill_type",
        "gs_fill_pen",
        "gs_back_pen",
        "gs_list",
        "gs_list_lampGroup",
        "gs_list_cost",
        "gs_list_manufacturer",
        "gs_list_note",
        "gs_list_location",
        "gs_list_accessories",
        "gs_list_volts",
        "FM_Type",
        "FM_InventoryNumber",
        "FM_SerialNumber",
        "FM_ProductionYear",
        "FM_ObjectWeight",
        "FM_ObjectWeightUnit",
        "FM_PowerConsumption",
        "FM_Egress",
        "gs_list_custom1",
        "gs_list_custom2",
        "gs_list_custom3",
        "gs_list_custom4",
        "gs_list_custom5",
        "gs_list_lamptype",
        "gs_list_lens",
        "gs_list_mounting",
        "FM_NumberOfLights",
        "FM_WattPerLight",
        "FM_Mobile",
        "gs_onorm_name_value",
        "gs_onorm_name",
        "gs_onorm_height",
        "gs_onorm_powercons",
        "gs_onorm_aks",
        "gs_onorm_product",
        "gs_onorm_leistungbuch",
        "gs_onorm_description",
        "gs_onorm_id",
        "gs_onorm_admission",
        "gs_onorm_modification",
    };
    return Names;
}

} // namespace Merivane::Photometry
