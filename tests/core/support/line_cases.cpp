#include "core/support/line_cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace tarvis {
namespace {

std::string LowerCase(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

std::string Place(const HostFile& file, const std::string& key) {
  return file.Name + ":" + std::to_string(file.Ahead.size() + 1) + ": " + key;
}

void ExpectUnknown(TestRun& test, const HostFile& file, const std::string& key) {
  EXPECT_FALSE(ReadLine(test, file, key + ",1,2,3,4")) << key;
  EXPECT_EQ(test.Run.Session.Diagnosis, Place(file, "unknown key '" + key + "'"));
}

// The line "key,a0\r\n,a1\r\n,..." whose texts start with `letter`; `count` of them.
std::string LineOf(const std::string& key, char letter, std::size_t count) {
  std::string line = key;
  for (std::size_t part = 0; part < count; ++part)
    line += std::string(",") + letter + std::to_string(part) + "\\r\\n";
  return line;
}

std::string ValueOf(char letter, std::size_t part, bool unescapes) {
  return letter + std::to_string(part) + (unescapes ? "\r\n" : "\\r\\n");
}

// A line of as many parts as the key has, read after another one of the same key.
void ExpectFullLine(TestRun& test, const HostFile& file, const TextLine& line) {
  EXPECT_TRUE(
      ReadLine(test, file,
               LineOf(line.Key, 'a', line.Parts.size()) + "\r\n" + LineOf(line.Key, 'b', line.Parts.size())));
  for (std::size_t part = 0; part < line.Parts.size(); ++part) {
    EXPECT_EQ(*line.Parts[part].Text, ValueOf('b', part, line.Parts[part].Unescapes)) << "part " << part;
  }
}

void ExpectOverlongLine(TestRun& test, const HostFile& file, const TextLine& line) {
  EXPECT_TRUE(ReadLine(test, file, LineOf(line.Key, 'c', line.Parts.size()) + ", more,"));
  const std::size_t last = line.Parts.size() - 1;
  const std::string rest = line.Last == LastPart::kRest ? ", more," : "";
  EXPECT_EQ(*line.Parts[last].Text, ValueOf('c', last, line.Parts[last].Unescapes) + rest);
}

void ExpectShortLine(TestRun& test, const HostFile& file, const TextLine& line) {
  EXPECT_TRUE(ReadLine(test, file, LineOf(line.Key, 'd', line.Parts.size() - 1)));
  EXPECT_EQ(*line.Parts.back().Text, "");
}

}  // namespace

bool ReadLine(TestRun& test, const HostFile& file, const std::string& line) {
  std::vector<std::string> lines = file.Ahead;
  lines.push_back(line);
  test.Load(file.Name, lines);
  return file.Read(test.Run);
}

void ExpectTextLines(TestRun& test, const HostFile& file, const std::vector<TextLine>& lines) {
  for (const TextLine& line : lines) {
    SCOPED_TRACE(line.Key);
    ExpectFullLine(test, file, line);
    ExpectOverlongLine(test, file, line);
    ExpectShortLine(test, file, line);
    ExpectUnknown(test, file, LowerCase(line.Key));
    ExpectUnknown(test, file, " " + line.Key);
    ExpectUnknown(test, file, line.Key + " ");
  }
}

void ExpectNumberLines(TestRun& test, const HostFile& file, const std::vector<NumberLine>& lines) {
  for (const NumberLine& line : lines) {
    SCOPED_TRACE(line.Key);
    for (const int number : {32767, 1, 0, -1}) {
      EXPECT_TRUE(ReadLine(test, file, line.Key + "," + std::to_string(number)));
      EXPECT_EQ(*line.Number, number);
    }
    EXPECT_TRUE(ReadLine(test, file, line.Key + ",7\r\n" + line.Key + ", 2.5 ")) << "the later line counts";
    EXPECT_EQ(*line.Number, 2);
    for (const char* text : {"", "x", "1,2", "32768", "-32769"}) {
      const std::string message = RunTimeFailureOf([&] { ReadLine(test, file, line.Key + "," + text); });
      EXPECT_TRUE(message.starts_with(Place(file, line.Key) + ": n")) << message;
    }
    ExpectUnknown(test, file, LowerCase(line.Key));
  }
}

void ExpectHeaderLines(TestRun& test, const HostFile& file) {
  FileHeader& header = test.Run.Header;
  ExpectTextLines(test, file,
                  {{"FileType", LastPart::kRest, {header.FileType}},
                   {"Made-by", LastPart::kRest, {header.MadeBy}},
                   {"DateTime", LastPart::kRest, {header.DateTime}},
                   {"MechaInfo", LastPart::kRest, {header.MechaInfo}},
                   {"File", LastPart::kRest, {header.File}}});
  EXPECT_TRUE(ReadLine(test, file, "File-Spec,3"));
  EXPECT_EQ(header.FileSpec, 3);
  ExpectUnknown(test, file, "file-spec");
}

void ExpectUnknownKeys(TestRun& test, const HostFile& file, const std::vector<std::string>& keys) {
  for (const std::string& key : keys) ExpectUnknown(test, file, key);
}

void ExpectParameterBlock(TestRun& test, const HostFile& file) {
  EXPECT_TRUE(ReadLine(test, file,
                       "UserNum,1\r\nUserName,1,a,b\r\nUserValue,2,3,u,x\r\nSwitchNum,1\r\nSwitch,1,2,3,s\r\n"
                       "Switch0,0,1,2,3,w\r\nSwitch1,0,1,2,3,x\r\nSwitch2,0,1,2,3,y\r\nSwitch3,0,1,2,3,z"));
  const UserData& user = test.Run.User;
  EXPECT_EQ(user.Prm[0].No + user.Prm[0].Name + user.Prm[0].Value + user.Prm[0].Default + user.Prm[0].Unit,
            "1a,b23u");
  std::string texts;
  for (const SwitchDigit& digit : user.Switches[0].Digit) texts += digit.Text;
  EXPECT_EQ(user.Switches[0].Name + texts, "swxyz");
  for (const char* key : {"UserNum", "UserName", "UserValue", "SwitchNum", "Switch", "Switch0", "Switch1",
                          "Switch2", "Switch3", "CommentCnt", "Comment"}) {
    ExpectUnknown(test, file, LowerCase(key));
  }
  ExpectUnknown(test, file, "Switch4");
}

}  // namespace tarvis
