// The configuration file in place of the registry: its place, its grammar, its faults.
#include "platform/system/configuration_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>
#include <fstream>
#include <map>

#include "support/fake_desktop.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

class Configuration : public testing::Test {
 protected:
  std::string Path(const std::string& name = "tarvis.ini") const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
  ConfigurationRegistry Holding(const std::string& text) {
    std::ofstream(Path(), std::ios::binary) << text;
    return At(Path());
  }
  ConfigurationRegistry At(const std::string& path) { return {path, desktop_}; }
  const std::vector<std::string>& Diagnoses() const { return desktop_.Diagnoses; }

 private:
  QTemporaryDir folder_;
  FakeDesktop desktop_;
};

constexpr const char* HostKey = R"(SOFTWARE\Korvane\Tessaline\Brenmark\Quillon\Setup)";

TEST_F(Configuration, ValueIsTakenRawToTheEndOfTheLine) {
  auto registry = Holding(std::string("[") + HostKey + "]\nSystemPath= C:\\host = \"a\";#b \nQuillon=200\n");
  EXPECT_EQ(registry.Value(HostKey, "SystemPath"), " C:\\host = \"a\";#b ");
  EXPECT_EQ(registry.Value(HostKey, "Quillon"), "200");
}

TEST_F(Configuration, LineEndOfEitherKindEndsAValue) {
  auto registry = Holding(std::string("[") + HostKey + "]\r\nSystemPath=/opt/host\r\nQuillon=200");
  EXPECT_EQ(registry.Value(HostKey, "SystemPath"), "/opt/host");
  EXPECT_EQ(registry.Value(HostKey, "Quillon"), "200");
}

TEST_F(Configuration, ByteOrderMarkIsNoPartOfTheFirstSection) {
  auto registry = Holding("\xEF\xBB\xBF[S]\nQuillon=200\n\xEF\xBB\xBF[T]\nQuillon=100\n");
  EXPECT_EQ(registry.Value("S", "Quillon"), "200");
  EXPECT_EQ(registry.Value("T", "Quillon"), "") << "only the file's first bytes are a mark";
}

TEST_F(Configuration, Utf16IsNamedAsWhatIsWrong) {
  Holding(std::string("\xFF\xFE[\0S\0]\0\n\0", 10));
  EXPECT_THAT(Diagnoses(), ElementsAre(Path() + ": is UTF-16 text, where UTF-8 is read"));
}

TEST_F(Configuration, EntryBelongsToItsOwnSectionOnly) {
  auto registry = Holding("[One]\nSystemPath=/one\n[Two]\nQuillon=100\n");
  EXPECT_EQ(registry.Value("Two", "SystemPath"), "");
  EXPECT_EQ(registry.Value("One", "SystemPath"), "/one");
}

TEST_F(Configuration, MissingFileGivesEmptyValuesAndIsNamedOnce) {
  auto registry = At(Path("absent.ini"));
  EXPECT_EQ(registry.Value(HostKey, "SystemPath"), "");
  EXPECT_EQ(registry.SystemCodePage().Number(), 1252);
  EXPECT_FALSE(registry.CountsPdfPrinter());
  EXPECT_THAT(Diagnoses(), ElementsAre(Path("absent.ini") + ": can't be read: No such file or directory"));
}

TEST_F(Configuration, FolderInPlaceOfTheFileGivesEmptyValuesAndIsNamedOnce) {
  auto registry = At(Path(""));
  EXPECT_EQ(registry.Value(HostKey, "SystemPath"), "");
  EXPECT_THAT(Diagnoses(), ElementsAre(Path("") + ": can't be read: Is a directory"));
}

// Opening a pipe that nobody writes to would take for ever.
TEST_F(Configuration, PipeInPlaceOfTheFileGivesEmptyValuesAndIsNamedOnce) {
  ASSERT_EQ(std::system(("mkfifo '" + Path() + "'").c_str()), 0);
  auto registry = At(Path());
  EXPECT_EQ(registry.Value(HostKey, "SystemPath"), "");
  EXPECT_EQ(registry.SystemCodePage().Number(), 1252);
  EXPECT_THAT(Diagnoses(), ElementsAre(Path() + ": can't be read: is no regular file"));
}

TEST_F(Configuration, MissingEntryIsNamedWithItsSection) {
  auto registry = Holding("[One]\nSystemPath=/one\n");
  EXPECT_EQ(registry.Value("Two", "SystemPath"), "");
  EXPECT_THAT(Diagnoses(), ElementsAre(Path() + ": there is no SystemPath in [Two]"));
}

TEST_F(Configuration, EmptyFileAndEmptyValueAreNoFault) {
  Holding("");
  Holding("[One]\nSystemPath=\n").Value("One", "SystemPath");
  EXPECT_THAT(Diagnoses(), ElementsAre());
}

TEST_F(Configuration, ValueOf1024CharactersIsTakenWholeAndALongerOneIsUnread) {
  std::string umlauts;
  for (int i = 0; i < 1024; ++i) umlauts += "\xC3\xBC";
  auto registry = Holding("[S]\nexact=" + umlauts + "\nlong=" + umlauts + "t\n");
  EXPECT_EQ(registry.Value("S", "exact"), umlauts);
  EXPECT_THAT(Diagnoses(), ElementsAre());
  EXPECT_EQ(registry.Value("S", "long"), "");
  EXPECT_THAT(Diagnoses(), ElementsAre(Path() + ":3: long: more than 1024 characters"));
}

TEST_F(Configuration, NamesCodePageAndPdfPrinter) {
  auto registry = Holding("[Tarvis]\nCodePage=932\nPdfPrinter=yes\n");
  EXPECT_EQ(registry.SystemCodePage().Number(), 932);
  EXPECT_TRUE(registry.CountsPdfPrinter());
}

TEST_F(Configuration, AnyOtherWordThanYesDoesNotCountThePdfPrinter) {
  EXPECT_FALSE(Holding("[Tarvis]\nPdfPrinter=no\n").CountsPdfPrinter());
}

TEST_F(Configuration, CodePageThatIsNoneNamesFileLineKeyAndText) {
  const std::map<std::string, std::string> reasons = {{"12x", "not a code page number"},
                                                      {"7", "no such code page"},
                                                      {"1200", "not a code page that holds ASCII"}};
  for (const auto& [text, reason] : reasons) {
    auto registry = Holding("[Tarvis]\nPdfPrinter=yes\nCodePage=" + text + "\n");
    try {
      registry.SystemCodePage();
      ADD_FAILURE() << text;
    } catch (const RunTimeFailure& failure) {
      EXPECT_EQ(failure.what(), Path() + ":3: CodePage: " + reason + ": '" + text + "'");
    }
  }
}

class ConfigurationPlace : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"TARVIS_CONFIG", "XDG_CONFIG_HOME", "HOME"}) {
      const char* value = std::getenv(name);
      before_[name] = value ? value : "";
      unsetenv(name);
    }
  }
  void TearDown() override {
    for (const auto& [name, value] : before_) {
      if (value.empty())
        unsetenv(name.c_str());
      else
        setenv(name.c_str(), value.c_str(), 1);
    }
  }
  // Makes a configuration file below `home` and returns its path.
  std::string MakeFile(const QString& home) {
    QDir(folder_.path()).mkpath(home + "/tarvis");
    std::string path = folder_.filePath(home + "/tarvis/tarvis.ini").toStdString();
    std::ofstream{path} << "\n";
    return path;
  }
  std::string Folder(const QString& name) const { return folder_.filePath(name).toStdString(); }

 private:
  std::map<std::string, std::string> before_;
  QTemporaryDir folder_;
};

TEST_F(ConfigurationPlace, IsTheOneTheEnvironmentNamesEvenIfItIsMissing) {
  setenv("XDG_CONFIG_HOME", Folder("xdg").c_str(), 1);
  MakeFile("xdg");
  setenv("TARVIS_CONFIG", "/nowhere/my.ini", 1);
  EXPECT_EQ(ConfigurationPath(), "/nowhere/my.ini");
}

TEST_F(ConfigurationPlace, IsTheUsersOwnBeforeTheMachines) {
  const std::string own = MakeFile("xdg");
  setenv("XDG_CONFIG_HOME", Folder("xdg").c_str(), 1);
  EXPECT_EQ(ConfigurationPath(), own);
}

TEST_F(ConfigurationPlace, IsBelowTheHomeFolderWhereNoOtherIsNamed) {
  const std::string own = MakeFile("me/.config");
  setenv("HOME", Folder("me").c_str(), 1);
  EXPECT_EQ(ConfigurationPath(), own);
}

TEST_F(ConfigurationPlace, IsTheMachinesWhereTheUserHasNone) {
  setenv("XDG_CONFIG_HOME", Folder("empty").c_str(), 1);
  EXPECT_EQ(ConfigurationPath(), "/etc/tarvis/tarvis.ini");
}

}  // namespace
}  // namespace tarvis
