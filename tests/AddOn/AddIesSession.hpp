#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Tests {

inline constexpr std::uint32_t WallToSelect = 1;
inline constexpr std::uint32_t LampToSelect = 2;   ///< of the part "Plafon", a luminaire already
inline constexpr std::uint32_t ObjectToSelect = 3; ///< of the part "Caixa"

/// A session on a project with a wall, a lamp and an object, both boxes of 0.2 x 0.2 x 0.1 m whose
/// lower faces stand on their origins.
class AddIesSession : public AddOnSession {
protected:
    AddIesSession();

    /// Begins anew with these elements selected.
    void Select(const std::vector<std::uint32_t>& numbers);

    /// Writes an IES file; gives its path as answers have it.
    std::string WriteIes(const std::string& name, const std::string& text) const;

    /// Of the choice of that file, of the dialog, and both as one script.
    static std::string ChooseFile(const std::string& path);
    static std::string AnswerDialog(const std::string& items, int button = 1);
    static void PrepareBoth(const std::string& path, const std::string& items, int button = 1);
};

/// A file of 0 to 90 degrees in one plane, 100 cd falling to 0: 228 lm, 10 W, an opening of 0.1 by
/// 0.2 m, with maker, catalogue number, description and lamp. Its description's degree sign is the
/// byte pair A1 E3; LAMP tells a colour rendering of 80.
std::string SpotIes();

} // namespace Merivane::Tests
