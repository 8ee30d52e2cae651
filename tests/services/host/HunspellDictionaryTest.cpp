#include "services/host/HunspellDictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::string_literals;
using Texts = std::vector<std::string>;

constexpr std::string_view kSuffix = "TRY abcdefghijklmnopqrstuvwxyz\nSFX S Y 1\nSFX S 0 s .\n";

class HunspellDictionaryTest : public testing::Test {
 protected:
  HunspellDictionaryTest() {
    Put("de_DE", "UTF-8", "3\nHaus\nBücher/S\ngeht's\n");
    Put("de_CH", "ISO8859-1", "3\nStra\337e\nB\374cher/S\ngeht's\n");
    Put("en_US", "UTF-8", "1\nhouse/S\n");
  }

  void Put(const std::string& name, const std::string& encoding, std::string_view words) {
    PutFile(folder_ / (name + ".aff"), "SET " + encoding + '\n' + std::string(kSuffix));
    PutFile(folder_ / (name + ".dic"), words);
  }
  HunspellDictionary Open(const std::string& language) {
    return HunspellDictionary(words_, {{language}, {folder_.Path()}});
  }
  static void ExpectKnown(HunspellDictionary& dictionary, const Texts& words, bool known = true) {
    for (const std::string& word : words) EXPECT_EQ(dictionary.Knows(word), known) << word;
  }
  static DictionarySearch SearchBy(std::map<std::string, std::string> variables) {
    return DictionarySearch::By([&variables](const char* name) { return variables[name]; });
  }
  // The name of the dictionary that is found in the folder.
  std::string Found(const std::map<std::string, std::string>& variables) {
    return FindDictionary({SearchBy(variables).languages, {folder_.Path()}}).name;
  }

  TemporaryFolder folder_;
  std::string words_ = folder_ / "config/words.txt";
};

TEST_F(HunspellDictionaryTest, TheDesktopsLanguageDecides) {
  EXPECT_EQ(Found({}), "en_US");
  EXPECT_EQ(Found({{"LANG", "fr_FR"}, {"LC_MESSAGES", "de_CH.UTF-8@euro"}}), "de_CH");
  EXPECT_EQ(Found({{"LC_ALL", "C.UTF-8"}, {"LANG", "de_DE"}}), "en_US");
  EXPECT_EQ(Found({{"LANG", "../de_DE"}}), "en_US");
  EXPECT_EQ(Found({{"LANG", "de_LU"}}), "de_DE");
  for (const auto* const name : {"sr_RS", "sr_Latn_RS", "fr_med", "ca-valencia"}) {
    Put(name, "UTF-8", "1\na\n");
  }
  EXPECT_EQ(Found({{"LANG", "sr_RS.UTF-8@latin"}}), "sr_Latn_RS");
  EXPECT_EQ(Found({{"LANG", "ca_ES@valencia"}}), "ca-valencia");
  EXPECT_EQ(Found({{"LANG", "fr_FR"}}), "en_US") << "the words of one trade are no dictionary";

  const Texts folders = SearchBy({{"DICPATH", "/a:/b"}, {"HOME", "/home/ann"}}).folders;
  EXPECT_EQ((Texts{folders.begin(), folders.begin() + 3}),
            (Texts{"/a", "/b", "/home/ann/.local/share/hunspell"}));
}

TEST_F(HunspellDictionaryTest, FilesThatAreNoDictionaryDoNotCount) {
  for (const auto* const words : {"", "house\n", "\177ELF\x02\0\xFF", "99999999\nhouse\n"}) {
    PutFile(folder_ / "de_DE.dic", words);
    EXPECT_EQ(Found({{"LANG", "de_DE"}}), "de_CH");
  }
  Put("de_DE", "UTF-8\nTRY ab\xF8q", "1\nHaus\n");
  EXPECT_EQ(Found({{"LANG", "de_DE"}}), "de_CH");
  fs::remove(folder_ / "de_DE.dic");
  fs::create_directory(folder_ / "de_DE.dic");
  fs::remove(folder_ / "de_CH.aff");
  fs::remove(folder_ / "en_US.aff");
  HunspellDictionary none(words_, {{"de_DE", "en_US"}, {"/not/there", folder_.Path()}});
  EXPECT_EQ(TextThrownBy([&] { none.Learn("a"); }),
            R"(There is no dictionary for "de_DE" or "en_US" in )" + folder_.Path() + '.');
  EXPECT_EQ(CodeThrownBy([&] { none.Suggest("a"); }), ErrorCode::kFileNotFound);
  PutFile(folder_ / "en_US.aff",
          "SFX S Y 99999\nSFX\nSET\nREP x\n\xFF\xFE\0PFX ? ?\nCOMPOUNDRULE"s);
  EXPECT_TRUE(none.Knows("house")) << "the dictionary that was put there meanwhile";
}

TEST_F(HunspellDictionaryTest, WordsGoThroughTheDictionarysEncoding) {
  for (const auto* const language : {"de_DE", "de_CH"}) {
    HunspellDictionary dictionary = Open(language);
    ExpectKnown(dictionary, {"Bücher", "BÜCHERS", "geht's", "geht’s"});
    ExpectKnown(dictionary, {"B\374cher", "Бücher", "Bücherч", "Bucher", "geht‘s"}, false);
    EXPECT_EQ(std::ranges::count(dictionary.Suggest("Bücherx"), "Bücher"), 1);
    EXPECT_EQ(dictionary.Suggest("gehts’"), Texts{"geht’s"});
  }
  Put("ru_RU", "microsoft-cp1251", "1\n\xEC\xE8\xF0\n");
  EXPECT_TRUE(Open("ru_RU").Knows("Мир"));
  Put("xx_XX", "no-such-encoding", "1\nhouse\n");
  EXPECT_TRUE(Open("xx_XX").Knows("house"));
  EXPECT_FALSE(Open("xx_XX").Knows("höuse"));
}

TEST_F(HunspellDictionaryTest, WhatIsNoWordIsHarmless) {
  HunspellDictionary dictionary = Open("de_DE");
  for (const std::string& text :
       {std::string(300, 'q'), std::string(1000000, 'q'), "Haus\0"s, "\xC3"s, "<?xml?>"s}) {
    EXPECT_FALSE(dictionary.Knows(text)) << text.substr(0, 20);
    EXPECT_EQ(dictionary.Suggest(text), Texts{});
  }
  EXPECT_EQ(dictionary.Suggest(""), Texts{});
  for (const std::string& text : {"a\nb"s, " "s, "\xC3"s, std::string(1000, 'q')}) {
    EXPECT_EQ(CodeThrownBy([&] { dictionary.Learn(text); }), ErrorCode::kOther);
  }
  EXPECT_FALSE(fs::exists(words_));
}

TEST_F(HunspellDictionaryTest, LearntWordsLastAndTakeTheirCases) {
  for (const auto* const language : {"de_DE", "de_CH"}) {
    fs::remove(words_);
    HunspellDictionary dictionary = Open(language);
    for (const auto* const word : {"ünix", "чай", "Łódź", "iTüp", "dü’s", "ünix"}) {
      dictionary.Learn(word);
    }
    EXPECT_EQ(GetFile(words_), "ünix\nчай\nŁódź\niTüp\ndü’s\n");
    HunspellDictionary nextRun = Open(language);
    ExpectKnown(nextRun, {"ünix", "Ünix", "ÜNIX", "чай", "Чай", "ЧАЙ", "Łódź", "ŁÓDŹ", "iTüp",
                          "ITÜP", "dü's", "Dü’s"});
    ExpectKnown(nextRun, {"łódź", "ITüp", "itüp", "чАй"}, false);
    EXPECT_EQ(nextRun.Suggest("ünixx"), Texts{"ünix"});
  }
}

TEST_F(HunspellDictionaryTest, ADamagedListGivesWhatIsReadableAndIsKept) {
  fs::create_directory(folder_ / "config");
  const std::string bytes = "\uFEFFerstes\r\n\r\n\xFF\xFE\0x\nzweites\r"s +
                            std::string(1000000, 'q') + "\n\xC3\n\tdrittes \0\n viertes"s;
  PutFile(words_, bytes);
  HunspellDictionary dictionary = Open("de_CH");
  ExpectKnown(dictionary, {"erstes", "zweites", "viertes"});
  EXPECT_FALSE(dictionary.Knows("drittes"));
  dictionary.Learn("fünftes");
  EXPECT_EQ(GetFile(words_), bytes + "\nfünftes\n");
}

TEST_F(HunspellDictionaryTest, WordsThatCannotBeKeptCountForTheRun) {
  fs::create_directories(words_);
  HunspellDictionary dictionary = Open("de_DE");
  EXPECT_EQ(TextThrownBy([&] { dictionary.Learn("foo"); }), words_ + ": Is a directory");
  EXPECT_TRUE(dictionary.Knows("foo"));
  for (const std::string& told : {words_ + ": Is a directory", ""s}) {
    EXPECT_EQ(TextThrownBy([&] { dictionary.RaiseOwnWordsError(); }), told);
  }
  fs::remove(words_);
  const std::string huge(std::size_t{5} << 20U, '\n');
  PutFile(words_, huge);
  EXPECT_EQ(TextThrownBy([&] { dictionary.Learn("bar"); }),
            words_ + ": The file is too large for a list of words");
  EXPECT_TRUE(GetFile(words_) == huge);
  InProcess([&] {
    fs::remove(words_);
    fs::permissions(folder_ / "config", fs::perms::owner_read | fs::perms::owner_exec);
    BecomeOrdinaryUser();
    EXPECT_EQ(TextThrownBy([&] { dictionary.Learn("baz"); }), words_ + ": Permission denied");
    EXPECT_TRUE(dictionary.Knows("BAZ"));
  });
  fs::remove(words_);
  HunspellDictionary other = Open("de_CH");
  other.Learn("another program's");
  other.RaiseOwnWordsError();  // That there was no list yet is no error.
  dictionary.Learn("last");
  EXPECT_EQ(GetFile(words_), "another program's\nfoo\nbar\nlast\n") << "failed words come along";
  EXPECT_EQ(NamesIn(folder_ / "config"), Names{"words.txt"});
}

}  // namespace
}  // namespace tagsmith
