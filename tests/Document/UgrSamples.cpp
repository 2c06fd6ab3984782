#include "UgrSamples.hpp"

namespace Merivane::Document {

std::string OpeningIes(const std::string& opening, const std::string& candela) {
    return "IESNA:LM-63-2002\n[TEST] 1\n[MANUFAC] Exemplo\n[LUMCAT] P-63\n[LUMINAIRE] Painel\n"
           "TILT=NONE\n1 -1 1 5 1 1 2 " +
           opening + "\n1 1 20\n0 45 90 135 180\n0\n" + candela + "\n";
}

std::string PanelIes() {
    return OpeningIes("0.3 0.6 0");
}

UgrReport MadeUpReport() {
    const IesReport file = BuildIesReport("pasta/painel.ies", PanelIes());
    UgrReport report;
    report.ok = true;
    report.fileName = file.fileName;
    report.luminaire = "Painel";
    report.product = "Exemplo · P-63 · painel.ies";
    report.photometry = file.file;
    report.height = 2.0;
    report.flux = 3600.4;
    report.referenceUgr = 18.34;
    for (std::size_t room = 0; room < report.table.crosswise.size(); ++room) {
        for (std::size_t set = 0; set < report.table.crosswise[room].size(); ++set) {
            const double value = 0.5 * static_cast<double>(room) + 0.1 * static_cast<double>(set);
            report.table.crosswise[room][set] = 10.0 + value;
            report.table.lengthwise[room][set] = 9.0 + value;
        }
    }
    return report;
}

} // namespace Merivane::Document
