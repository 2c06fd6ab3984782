#include <numbers>
#include <utility>

#include "Document/SceneFields.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Photometry/LuminaireTypeKey.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Document {

namespace {

using Photometry::IesFile;
using Simulation::SceneLuminaire;

constexpr NumberRange Turn = {-360.0, 360.0}; // deg
constexpr NumberRange Fraction = {0.0, 1.0};
constexpr NumberRange ColourRenderingRange = {1.0, 100.0};

/// Header texts come in the encoding of the maker's machine; everything behind this shows UTF-8.
void NormaliseHeader(IesFile& file) {
    for (auto& [key, value] : file.keywords) {
        value = Photometry::NormaliseIesText(value);
    }
    for (std::string& line : file.otherLines) {
        line = Photometry::NormaliseIesText(line);
    }
}

std::string ReaderWords(const std::string& words) {
    return Text::ShownText(Photometry::NormaliseIesText(words));
}

/// The file of a path, read when it is met first; null with `error` set when it is refused.
const IesFile* FindIes(const Place& place, const std::string& path, IesLibrary& library,
                       std::string& error) {
    const auto known = library.files.find(path);
    if (known != library.files.end()) {
        return &known->second;
    }
    std::string bytes;
    if (!library.load(path, bytes)) {
        Refuse(place, "o arquivo IES \"" + path + "\" não existe ou não pode ser lido", error);
        return nullptr;
    }
    IesFile file;
    const Photometry::IesReadResult read = Photometry::ReadIes(bytes, file);
    if (!read.ok) {
        Refuse(place, "o arquivo IES \"" + path + "\" foi recusado: " + ReaderWords(read.error),
               error);
        return nullptr;
    }
    for (const std::string& warning : read.warnings) {
        library.warnings.push_back("\"" + path + "\": " + ReaderWords(warning));
    }
    std::string opening;
    Photometry::WithKnownOpening(file, opening);
    if (!opening.empty()) {
        library.warnings.push_back("\"" + path + "\": " + opening);
    }
    NormaliseHeader(file);
    return &library.files.emplace(path, std::move(file)).first->second;
}

/// The first line of a header value, fit to be shown.
std::string HeaderText(const IesFile& file, std::string_view key) {
    const std::string value = FindKeyword(file, key);
    return Text::ShownText(value.substr(0, value.find('\n')));
}

/// Identity as the header of the file tells it, where the document does not.
void TakeHeader(SceneLuminaire& luminaire, const std::string& path) {
    const std::string fileName = path.substr(path.find_last_of('/') + 1);
    const std::string code = HeaderText(luminaire.photometry, "LUMCAT");
    std::string name = HeaderText(luminaire.photometry, "LUMINAIRE");
    luminaire.contract.iesFileName = fileName;
    luminaire.manufacturer = HeaderText(luminaire.photometry, "MANUFAC");
    luminaire.lamp = HeaderText(luminaire.photometry, "LAMP");
    luminaire.inputWatts = luminaire.photometry.inputWatts;
    if (luminaire.contract.colourRendering == 0.0) {
        luminaire.contract.colourRendering =
            Photometry::ColourRenderingFromIes(luminaire.photometry);
    }
    luminaire.typeKey = Photometry::LuminaireTypeKey(code, name, luminaire.lamp, fileName);
    if (luminaire.displayName.empty()) {
        name = code.empty() ? name : code;
        luminaire.displayName = name.empty() ? fileName : name;
    }
}

bool ReadArray(const Place& place, SceneLuminaire& luminaire, std::string& error) {
    constexpr NumberRange count = {1.0, 1000.0};
    constexpr NumberRange step = {-10000.0, 10000.0};
    if (!ReadObject(place,
                    {Optional("x", Into(luminaire.arrayCountX, count)),
                     Optional("y", Into(luminaire.arrayCountY, count)),
                     Optional("passoX", Into(luminaire.arrayStepX, step)),
                     Optional("passoY", Into(luminaire.arrayStepY, step))},
                    error)) {
        return false;
    }
    const bool stacked = (luminaire.arrayCountX > 1 && luminaire.arrayStepX == 0.0) ||
                         (luminaire.arrayCountY > 1 && luminaire.arrayStepY == 0.0);
    return !stacked ||
           Refuse(place, "espera-se um passo diferente de 0 onde há mais de uma luminária", error);
}

} // namespace

bool ReadLuminaire(const Place& place, IesLibrary& library, SceneLuminaire& luminaire,
                   std::string& error) {
    std::string path;
    Simulation::Point3D position;
    Simulation::Point3D center;
    double rotation = 0.0;
    Photometry::LuminaireSettings& contract = luminaire.contract;
    const FieldReader readArray = [&luminaire](const Place& array, std::string& text) {
        return ReadArray(array, luminaire, text);
    };
    if (!ReadObject(place,
                    {Optional("nome", Into(luminaire.displayName)), Required("ies", Into(path)),
                     Required("posicao", Into(position, CoordinateRange)),
                     Optional("rotacao", Into(rotation, Turn)),
                     Optional("espelhada", Into(luminaire.mirrored)),
                     Optional("centro", Into(center, NumberRange{-1000.0, 1000.0})),
                     Optional("rotacaoC0", Into(contract.c0Rotation, Turn)),
                     Optional("inclinacao", Into(contract.tiltAngle, {-180.0, 180.0})),
                     Optional("direcaoDaInclinacao", Into(contract.tiltDirection, Turn)),
                     Optional("dimerizacao", Into(luminaire.dimming, Fraction)),
                     Optional("fatorDeManutencao", Into(contract.maintenanceFactor, Fraction)),
                     Optional("indiceDeReproducaoDeCor",
                              Into(contract.colourRendering, ColourRenderingRange)),
                     Optional("repeticao", readArray),
                     Optional("escalaDeComprimento", Into(luminaire.lengthScale, {0.001, 1000.0}))},
                    error)) {
        return false;
    }
    luminaire.x = position.x;
    luminaire.y = position.y;
    luminaire.z = position.z;
    luminaire.rotation = rotation * std::numbers::pi / 180.0;
    contract.centerX = center.x;
    contract.centerY = center.y;
    contract.centerZ = center.z;
    const Place iesPlace{place.value->Find("ies"), &place, "ies", 0};
    const IesFile* file = FindIes(iesPlace, path, library, error);
    if (file == nullptr) {
        return false;
    }
    luminaire.photometry = *file;
    TakeHeader(luminaire, path);
    return true;
}

} // namespace Merivane::Document
