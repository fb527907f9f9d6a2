// The print options: what the user chose about printing, and the file that keeps it between runs.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "run/session.h"

namespace tarvis {

struct PrintRun;

// One of the three blocks "Where to Submit" (keys User1... to User3...).
struct AddresseeBlock {
  std::string Title;
  std::string Corp;
  std::string Sect;  // may hold CR LF
  std::string Name;
  std::string Adr;  // may hold CR LF
};

struct IdxTblOptions {
  std::int16_t Range = 0;    // element 1: 0 to 2
  std::string First;         // element 2
  std::string Last;          // element 3
  std::int16_t Comment = 0;  // element 4
};

// Elements of an option key are counted from 1: element n is index n - 1 of its array.
struct PrintOptions {
  std::int16_t FileSpec = 0;
  std::string FileType;
  std::string MadeBy;
  std::string DateTime;
  std::int16_t Cover = 0;
  std::int16_t SelectCover = 0;
  std::string DrowCorp;
  std::string DrowSect;
  std::string DrowName;
  std::string DrowEmail;
  std::string DrowZip;
  std::string DrowAdr;
  std::string DrowTEL;
  std::string DrowFAX;
  std::string DrowLogo;
  std::array<AddresseeBlock, 3> User;
  std::int16_t GreetingCnt = 0;
  std::string Greeting;
  std::int16_t ColorType = 0;
  HeaderOptions UserHeader;
  std::array<std::int16_t, 5> UserOption{};
  HeaderOptions PrmWizHeader;
  HeaderOptions TraceHeader;
  std::array<std::int16_t, 9> TraceOption{};
  HeaderOptions RealTraceHeader;
  std::array<std::int16_t, 7> RealTraceOption{};
  HeaderOptions MechaHeader;
  std::array<std::int16_t, 5> MechaOption{};
  HeaderOptions SimHeader;
  std::array<std::int16_t, 13> SimOption{};
  HeaderOptions IdxTblHeader;
  IdxTblOptions IdxTblOption;
  HeaderOptions ZoneTblHeader;
  std::int16_t ZoneTblOption = 0;
  HeaderOptions JogTblHeader;
  std::int16_t JogTblOption = 0;
};

}  // namespace tarvis
