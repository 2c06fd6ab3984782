#include <algorithm>
#include <set>
#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "Drawing/PngWriter.hpp"
#include "Workbench/Interface/DialogPicture.hpp"
#include "Workbench/Interface/OwnResources.hpp"

namespace Merivane::Workbench {
namespace {

constexpr double Pixel = 25.4 / 96.0; // mm

Dialog Make(int number) {
    return MakeDialog(static_cast<std::int16_t>(number), OwnResources().dialogs.at(number),
                      nullptr);
}

std::set<std::string> TextsOf(const Drawing::DisplayList& list) {
    std::set<std::string> texts;
    for (const Drawing::Layer& layer : list.layers) {
        for (const Drawing::Element& element : layer.elements) {
            if (const auto* const run = std::get_if<Drawing::TextRun>(&element)) {
                texts.insert(run->text);
            }
        }
    }
    return texts;
}

Drawing::Color ColorOf(const Drawing::DisplayList& list, const std::string& text) {
    for (const Drawing::Element& element : list.layers.front().elements) {
        const auto* const run = std::get_if<Drawing::TextRun>(&element);
        if (run && run->text == text) {
            return run->color;
        }
    }
    return {};
}

TEST(DialogPicture, IsAsLargeAsTheDialogWithItsFrame) {
    const Drawing::DisplayList list = DialogPicture(Make(32650));
    EXPECT_NEAR(list.width, (720 + 2) * Pixel, 1e-9);
    EXPECT_NEAR(list.height, (544 + 30 + 2) * Pixel, 1e-9);
    EXPECT_EQ(list.title, "Vantoro: configurações do motor de simulação (Radiance)");
}

TEST(DialogPicture, ShowsVisibleItemsAlone) {
    Dialog dialog = Make(32650);
    EXPECT_TRUE(TextsOf(DialogPicture(dialog)).count("Voltar ao perfil"));
    dialog.items[29].visible = false;
    EXPECT_FALSE(TextsOf(DialogPicture(dialog)).count("Voltar ao perfil"));
    EXPECT_TRUE(TextsOf(DialogPicture(dialog)).count("Cancelar"));
}

TEST(DialogPicture, GreysWhatIsDisabled) {
    Dialog dialog = Make(32650);
    const Drawing::Color plain = ColorOf(DialogPicture(dialog), "Voltar ao perfil");
    dialog.items[29].enabled = false;
    const Drawing::DisplayList list = DialogPicture(dialog);
    EXPECT_GT(ColorOf(list, "Voltar ao perfil").red, plain.red + 0.3);
    EXPECT_EQ(ColorOf(list, "Cancelar"), plain);
}

TEST(DialogPicture, ShowsFieldsPopupsAndCells) {
    Dialog dialog = Make(32640);
    AppendEntry(dialog.items[3], "norma um");
    AppendEntry(dialog.items[3], "norma dois");
    SelectEntry(dialog.items[3], 2);
    SetNumber(dialog.items[9], 512.5);
    SetColumns(dialog.items[4], {{"Zona", 0, 190}, {"Atividade", 190, 500}});
    for (int row = 1; row <= 30; ++row) {
        SetCell(dialog.items[4], AppendRow(dialog.items[4]), 1, "Zona " + std::to_string(row));
    }
    std::set<std::string> texts = TextsOf(DialogPicture(dialog));
    for (const char* const shown : {"norma dois", "512.5", "Zona", "Atividade", "Zona 1"}) {
        EXPECT_EQ(texts.count(shown), 1U) << shown;
    }
    EXPECT_EQ(texts.count("norma um"), 0U);
    EXPECT_EQ(texts.count("Zona 30"), 0U); // below the edge
    SelectRow(dialog.items[4], 30);
    texts = TextsOf(DialogPicture(dialog));
    EXPECT_EQ(texts.count("Zona 30"), 1U); // scrolled to
    EXPECT_EQ(texts.count("Zona 1"), 0U);
}

TEST(DialogPicture, CanBeWrittenForEveryDialogInBothThemes) {
    for (const auto& [number, resource] : OwnResources().dialogs) {
        std::string light;
        std::string dark;
        std::string error;
        EXPECT_TRUE(Drawing::WritePng(DialogPicture(Make(number)), light, error, {96.0})) << error;
        EXPECT_TRUE(Drawing::WritePng(DialogPicture(Make(number), true), dark, error, {96.0}))
            << error;
        EXPECT_NE(light, dark);
    }
}

TEST(DialogPicture, ShowsAnAlertWithItsButtons) {
    const ShownAlert alert{Host::AlertKind::Error,
                           "Falhou",
                           "O projeto está como estava.",
                           {"OK", "Ver o relatório"},
                           1};
    const std::set<std::string> texts = TextsOf(AlertPicture(alert));
    for (const std::string& shown :
         {alert.largeText, alert.smallText, alert.buttons[0], alert.buttons[1]}) {
        EXPECT_EQ(texts.count(shown), 1U) << shown;
    }
}

} // namespace
} // namespace Merivane::Workbench
