#include "Archicad/EmbeddedPicture.hpp"

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Archicad {
namespace {

constexpr const char* Png = "\x89PNG\r\n\x1A\n";
constexpr const char* Jpeg = "\xFF\xD8\xFF";

class ReadEmbeddedPicture : public ::testing::Test {
protected:
    bool Read(const std::string& name, const std::string& bytes) {
        Tests::WriteBytes(folder.Path() / name, bytes);
        return Archicad::ReadEmbeddedPicture(Text::WidePath(folder.Path() / name), picture);
    }

    Tests::TemporaryFolder folder;
    EmbeddedPicture picture;
};

TEST_F(ReadEmbeddedPicture, TellsTheKindByTheFilesBeginAndNotByItsExtension) {
    const std::string png = std::string(Png) + '\0' + "abc";
    EXPECT_TRUE(Read("vista.jpg", png));
    EXPECT_EQ(picture, (EmbeddedPicture{"vista.jpg", png, "image/png"}));
    const std::string jpeg = std::string(Jpeg) + "\xE0" + '\0';
    EXPECT_TRUE(Read("luminária.png", jpeg));
    EXPECT_EQ(picture, (EmbeddedPicture{"luminária.png", jpeg, "image/jpeg"}));
}

TEST_F(ReadEmbeddedPicture, RefusesAllElseAndLeavesThePicture) {
    picture = {"antes", "x", "image/png"};
    const EmbeddedPicture before = picture;
    for (const std::string bytes : {"", "GIF89a", "\x89PNG\r\n\x1A", "\xFF\xD8", " \xFF\xD8\xFF"}) {
        EXPECT_FALSE(Read("vista.png", bytes));
        EXPECT_EQ(picture, before);
    }
    EXPECT_FALSE(
        Archicad::ReadEmbeddedPicture(Text::WidePath(folder.Path() / "nenhum.png"), picture));
    EXPECT_FALSE(Archicad::ReadEmbeddedPicture(Text::WidePath(folder.Path()), picture));
    EXPECT_EQ(picture, before);
}

} // namespace
} // namespace Merivane::Archicad
