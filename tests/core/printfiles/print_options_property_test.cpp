// Random option files that are read and written again stay the same.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

constexpr int kFiles = 300;

// Makes options files as the program writes them, with all values at random.
class RandomOptionsFile {
 public:
  explicit RandomOptionsFile(unsigned seed) : random_(seed) {}

  std::string Make() {
    std::string file = "File-Spec,4\r\n";
    AddTexts(file, {"FileType", "Made-by", "DateTime"});
    AddNumbers(file, "Cover", 1);
    AddNumbers(file, "SelectCover", 1);
    AddTexts(file, {"DrowCorp", "DrowSect", "DrowName", "DrowEmail", "DrowZip", "DrowAdr", "DrowTEL",
                    "DrowFAX", "DrowLogo"});
    for (const char* user : {"User1", "User2", "User3"}) {
      for (const char* field : {"Title", "Corp", "Sect", "Name", "Adr"})
        AddText(file, std::string(user) + field);
    }
    AddNumbers(file, "GreetingCnt", 1);
    AddText(file, "Greeting");
    AddFunction(file, "User", 5);
    AddHeader(file, "PrmWizHeader");
    file += "PrmWizOption,\r\n";
    AddFunction(file, "Trace", 9);
    AddFunction(file, "RealTrace", 7);
    AddFunction(file, "Mecha", 5);
    AddFunction(file, "Sim", 13);
    AddNumbers(file, "ColorType", 1);
    AddHeader(file, "IdxTblHeader");
    file += "IdxTblOption," + Number() + "," + Field() + "," + Field() + "," + Number() + "\r\n";
    AddFunction(file, "ZoneTbl", 1);
    AddFunction(file, "JogTbl", 1);
    return file;
  }

 private:
  std::size_t Below(std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
  }

  std::string Number() { return std::to_string(std::uniform_int_distribution<int>(-32768, 32767)(random_)); }

  // Pieces that could be mistaken for separators, escapes or numbers, single and double bytes among them.
  std::string Piece() {
    static constexpr std::string_view kPieces[] = {"a",      " ",   "\\", "r", "n",        "\n",
                                                   "\\r\\n", "\\r", "1",  "-", "\x95\x5C", "\x83\x7C",
                                                   "\xB1",   "\"",  ";",  "\t"};
    return std::string(kPieces[Below(std::size(kPieces))]);
  }
  std::string Field() {
    std::string text;
    for (std::size_t pieces = Below(8); pieces > 0; --pieces) text += Piece();
    return text;
  }

  void AddText(std::string& file, const std::string& key) {
    file += key + "," + Field() + (Below(2) == 0 ? "," + Field() : "") + "\r\n";
  }
  void AddTexts(std::string& file, std::initializer_list<const char*> keys) {
    for (const char* key : keys) AddText(file, key);
  }
  void AddNumbers(std::string& file, const std::string& key, int count) {
    file += key;
    for (; count > 0; --count) file += "," + Number();
    file += "\r\n";
  }
  void AddHeader(std::string& file, const std::string& key) {
    file += key;
    for (int flag = 0; flag < 5; ++flag) file += "," + Number();
    file += "," + Field() + "\r\n";
  }
  void AddFunction(std::string& file, const std::string& function, int elements) {
    AddHeader(file, function + "Header");
    AddNumbers(file, function + "Option", elements);
  }

  std::mt19937 random_;
};

TEST(PrintOptionsProperty, AnyFileOfTheProgramReadsAndWritesBackTheSame) {
  const TempFolder folder;
  TestRun test;
  test.Run.CodePage = CodePage(932);
  test.Run.Session.SystemFolder = folder.HostPath();
  RandomOptionsFile files(20260305);
  for (int number = 0; number < kFiles; ++number) {
    const std::string file = files.Make();
    LoadBytes(test.Run, "PrintOption.ToT", file);
    ASSERT_TRUE(ReadPrintOptionsFile(test.Run)) << test.Run.Session.Diagnosis;
    ASSERT_TRUE(WritePrintOptionsFile(test.Run, folder.HostPath("PrintOption.ToT")));
    ASSERT_EQ(folder.Read("PrintOption.ToT"), file) << "file " << number;
  }
}

// Any text that a dialog may ever hand over, with breaks, commas and escapes anywhere.
std::string AnyText(std::mt19937& random) {
  static constexpr std::string_view kPieces[] = {"\r\n", "\r", "\n", ",", "\\r\\n",
                                                 "\\",   "r",  "n",  "a", "\u8868"};
  std::string text;
  for (std::size_t pieces = random() % 8; pieces > 0; --pieces)
    text += kPieces[random() % std::size(kPieces)];
  return text;
}

void FillWithAnyTexts(PrintOptions& options, std::mt19937& random) {
  for (std::string* text :
       {&options.FileType, &options.MadeBy, &options.DateTime, &options.DrowCorp, &options.DrowSect,
        &options.DrowName, &options.DrowEmail, &options.DrowZip, &options.DrowAdr, &options.DrowTEL,
        &options.DrowFAX, &options.DrowLogo, &options.User[1].Title, &options.User[1].Sect, &options.Greeting,
        &options.UserHeader.TitleText, &options.JogTblHeader.TitleText, &options.IdxTblOption.First,
        &options.IdxTblOption.Last}) {
    *text = AnyText(random);
  }
}

TEST(PrintOptionsProperty, AnyTextsAreWrittenInAFileThatReadsAndIsWrittenTheSameAgain) {
  const TempFolder folder;
  TestRun test;
  test.Run.CodePage = CodePage(932);
  const std::string path = folder.HostPath("PrintOption.ToT");
  std::mt19937 random(20260305);
  for (int number = 0; number < kFiles; ++number) {
    FillWithAnyTexts(test.Run.Options, random);
    ASSERT_TRUE(WritePrintOptionsFile(test.Run, path));
    const std::string file = folder.Read("PrintOption.ToT");
    test.Run.Options = {};
    LoadLines(test.Run, path);
    ASSERT_TRUE(ReadPrintOptionsFile(test.Run)) << test.Run.Session.Diagnosis << "\n" << file;
    const std::string title = test.Run.Options.JogTblHeader.TitleText;
    ASSERT_TRUE(WritePrintOptionsFile(test.Run, path));
    ASSERT_EQ(folder.Read("PrintOption.ToT").substr(0, file.find("UserHeader")),
              file.substr(0, file.find("UserHeader")));
    ASSERT_EQ(title.find(','), std::string::npos);
  }
}

}  // namespace
}  // namespace tarvis
