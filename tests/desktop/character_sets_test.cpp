#include <QListWidget>
#include <algorithm>
#include <filesystem>

#include "window_test.h"

namespace norvane {
namespace {

/// Texts whose bytes are read by the character set of a language.
class CharacterSets : public WindowTest {
 protected:
  void SetUp() override {
    // The versions of fourteen languages have a place.
    for (const char* name : {"language.lde", "language.lfr"}) {
      ASSERT_TRUE(std::filesystem::remove(folder / name));
    }
    // Byte E9 is a Latin letter in the Western code page and a Cyrillic one in the Russian.
    folder.Write("Address001.txt", "0,x\n1,Caf\xE9\n");
    folder.Write("language.lya", "Norvane,Arial,2\n0,name=Symbols-3.1\n18,Medium\n96,Sums\n");
    folder.Write("language.lyb", "Norvane,Arial,204\n0,name=Russian-\xE9\n18,Medium\n");
    WindowTest::SetUp();
  }

  void Choose(const std::string& code) {
    const auto& codes = State().languages.Lang_Code;
    const auto slot = std::find(codes.begin(), codes.end(), code) - codes.begin();
    Click(Screen().lblMenu(1));
    Wait_Until_Active(*State().forms.lang);
    Click(State().forms.lang->Label2(static_cast<int>(slot)));
    View(*State().forms.lang).close();
    Wait_Until_Active(Screen());
    Settle();
  }
};

TEST_F(CharacterSets, A_Language_With_The_Set_Of_Symbols_Shows_Its_Texts) {
  Choose("ya");
  EXPECT_EQ(Shown(Screen().Label1(0)), "Medium");
  EXPECT_EQ(Shown(Screen().Label10), "Symbols 3.1");
  EXPECT_EQ(Shown(Screen().Label2(0)), "\u03BB");
  EXPECT_EQ(Shown(Screen().Label2(1)), "\u03B1");
}

TEST_F(CharacterSets, A_Typed_Text_Is_Shown_Anew_In_Another_Language) {
  Paste(Screen().txtmtrs, "5\u00E9");
  ASSERT_EQ(Shown(Screen().txtmtrs), "5\u00E9");
  Choose("yb");
  EXPECT_EQ(Shown(Screen().txtmtrs), "5\u0439");
  Choose("en");
  EXPECT_EQ(Shown(Screen().txtmtrs), "5\u00E9");
}

TEST_F(CharacterSets, Addresses_Are_Shown_Anew_In_Another_Language) {
  Address& addresses = *State().forms.address;
  const auto& list = dynamic_cast<QListWidget&>(Widget(addresses.List1));
  EXPECT_EQ(list.item(0)->text(), "Caf\u00E9");
  Choose("yb");
  EXPECT_EQ(list.item(0)->text(), "Caf\u0439");
}

TEST_F(CharacterSets, Versions_In_The_List_Of_Languages_Are_Shown_Anew) {
  Choose("yb");
  const auto& codes = State().languages.Lang_Code;
  const auto slot = std::find(codes.begin(), codes.end(), "yb") - codes.begin();
  ASSERT_LE(slot, State().forms.lang->Label3.UBound());
  auto& version = Label(State().forms.lang->Label3(static_cast<int>(slot)));
  EXPECT_EQ(version.text(), "\u0439");
  Choose("en");
  EXPECT_EQ(version.text(), "\u00E9");
  Expect_Same_As_Model(View(*State().forms.lang));
}

}  // namespace
}  // namespace norvane
