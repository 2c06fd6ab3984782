#include "Photometry/ContractReading.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "Photometry/ContractBuilding.hpp"
#include "Photometry/ContractKeywords.hpp"

namespace Merivane::Photometry {

namespace {

using Type = ContractParameterType;

bool IsNumeric(const ContractParameter& parameter) {
    return parameter.type != Type::String && parameter.type != Type::RealArray &&
           parameter.type != Type::StringArray;
}

/// The nearest integer, the nearest that there is of what is beyond; 0 for NaN.
int Rounded(double number) {
    if (std::isnan(number)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(number), lowest, highest));
}

/// Reads parameter after parameter; the first that can't be read sets the error, and all later
/// reads are left out.
class Reader {
public:
    Reader(const std::vector<ContractParameter>& fromParameters, std::string& toError)
        : parameters(fromParameters), error(toError) {}

    bool Good() const { return error.empty(); }

    void Refuse(std::string reason) {
        if (Good()) {
            error = std::move(reason);
        }
    }

    void Real(std::string_view name, double& value) {
        const ContractParameter* parameter = Find(name);
        if (parameter && IsNumeric(*parameter)) {
            value = Good() ? parameter->number : value;
        } else {
            Refuse("parametro ausente ou de tipo errado: " + std::string(name));
        }
    }

    void Integer(std::string_view name, int& value) {
        double number = value;
        Real(name, number);
        value = Rounded(number);
    }

    void Table(std::string_view name, std::vector<double>& values) {
        const ContractParameter* parameter = Find(name);
        if (parameter && parameter->type == Type::RealArray && !parameter->numbers.empty()) {
            Take(parameter->numbers, values);
        } else {
            Refuse("tabela ausente: " + std::string(name));
        }
    }

    void SizedTable(std::string_view name, std::size_t count, std::vector<double>& values) {
        const ContractParameter* parameter = Find(name);
        if (!parameter || parameter->type != Type::RealArray) {
            Refuse("tabela ausente: " + std::string(name));
        } else if (parameter->numbers.size() != count) {
            Refuse("tabela " + std::string(name) + " com " +
                   std::to_string(parameter->numbers.size()) + " valores, esperados " +
                   std::to_string(count));
        } else {
            Take(parameter->numbers, values);
        }
    }

private:
    const ContractParameter* Find(std::string_view name) const {
        return FindParameter(parameters, name);
    }

    void Take(const std::vector<double>& from, std::vector<double>& to) const {
        if (Good()) {
            to = from;
        }
    }

    const std::vector<ContractParameter>& parameters;
    std::string& error;
};

bool ReadVersion(Reader& reader, int& version) {
    reader.Integer("mvContractVersion", version);
    if (version < 1 || version > ContractVersion) {
        reader.Refuse("luminaria com versao de contrato " + std::to_string(version) +
                      " (este Vantoro entende ate a " + std::to_string(ContractVersion) + ")");
    }
    return reader.Good();
}

bool ReadHeader(Reader& reader, IesFile& out) {
    reader.Integer("mvLampCount", out.lampCount);
    reader.Real("mvLumensPerLamp", out.lumensPerLamp);
    reader.Real("mvCandelaMultiplier", out.candelaMultiplier);
    reader.Integer("mvPhotometricType", out.photometricType);
    reader.Integer("mvUnitsType", out.unitsType);
    reader.Real("mvWidth", out.width);
    reader.Real("mvLength", out.length);
    reader.Real("mvHeight", out.height);
    reader.Real("mvBallastFactor", out.ballastFactor);
    reader.Real("mvFutureUse", out.futureUse);
    reader.Real("mvInputWatts", out.inputWatts);
    reader.Integer("mvTiltMode", out.tiltMode);
    if (out.photometricType < 1 || out.photometricType > 3 || out.unitsType < 1 ||
        out.unitsType > 2 || out.tiltMode < 0 || out.tiltMode > 2) {
        reader.Refuse("tipo fotometrico, unidade ou modo de TILT fora da faixa");
    }
    return reader.Good();
}

void ReadTilt(Reader& reader, const std::vector<ContractParameter>& parameters, IesFile& out) {
    if (out.tiltMode == 2) {
        const ContractParameter* file = FindParameter(parameters, "mvTiltFile");
        out.tiltFile = file ? file->text : out.tiltFile;
    } else if (out.tiltMode == 1) {
        reader.Integer("mvTiltGeometry", out.tiltGeometry);
        reader.Table("mvTiltAngles", out.tiltAngles);
        reader.SizedTable("mvTiltFactors", out.tiltAngles.size(), out.tiltFactors);
    }
}

void ReadCandela(Reader& reader, IesFile& out) {
    reader.Table("mvVerticalAngles", out.verticalAngles);
    reader.Table("mvHorizontalAngles", out.horizontalAngles);
    const std::size_t columns = out.verticalAngles.size();
    std::vector<double> values;
    reader.SizedTable("mvCandela", out.horizontalAngles.size() * columns, values);
    for (auto row = values.begin(); row != values.end();) {
        const auto end = row + static_cast<std::ptrdiff_t>(columns);
        out.candela.emplace_back(row, end);
        row = end;
    }
}

void TakeNumber(const std::vector<ContractParameter>& parameters, std::string_view name,
                double& value) {
    const ContractParameter* parameter = FindParameter(parameters, name);
    if (parameter && IsNumeric(*parameter) && std::isfinite(parameter->number)) {
        value = parameter->number;
    }
}

} // namespace

const ContractParameter* FindParameter(const std::vector<ContractParameter>& list,
                                       std::string_view name) {
    const auto found =
        std::find_if(list.begin(), list.end(),
                     [name](const ContractParameter& parameter) { return parameter.name == name; });
    return found == list.end() ? nullptr : &*found;
}

ContractReadResult ReadContract(const std::vector<ContractParameter>& parameters, IesFile& out) {
    out = {};
    ContractReadResult result;
    Reader reader(parameters, result.error);
    if (!ReadVersion(reader, result.version) || !ReadHeader(reader, out)) {
        return result;
    }
    ReadTilt(reader, parameters, out);
    ReadCandela(reader, out);
    if (!reader.Good()) {
        return result;
    }
    if (const ContractParameter* keywords = FindParameter(parameters, "mvIesKeywords")) {
        out.keywords = UnpackIesKeywords(keywords->texts);
    }
    out.formatVersion = 3;
    result.ok = true;
    return result;
}

LuminaireSettings ReadLuminaireSettings(const std::vector<ContractParameter>& parameters) {
    LuminaireSettings settings;
    TakeNumber(parameters, "mvCenterX", settings.centerX);
    TakeNumber(parameters, "mvCenterY", settings.centerY);
    TakeNumber(parameters, "mvCenterZ", settings.centerZ);
    TakeNumber(parameters, "mvFlangeDepth", settings.flangeDepth);
    TakeNumber(parameters, "mvColourRendering", settings.colourRendering);
    TakeNumber(parameters, "mvC0Rotation", settings.c0Rotation);
    TakeNumber(parameters, "mvTiltAngle", settings.tiltAngle);
    TakeNumber(parameters, "mvTiltDirection", settings.tiltDirection);
    TakeNumber(parameters, "mvMaintenanceFactor", settings.maintenanceFactor);
    const ContractParameter* file = FindParameter(parameters, "mvIesFileName");
    if (file && file->type == Type::String) {
        settings.iesFileName = file->text;
    }
    return settings;
}

} // namespace Merivane::Photometry
