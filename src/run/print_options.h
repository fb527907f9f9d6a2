// The print options: what the user chose about printing, and the file that keeps it between runs.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
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

// The elements of an option key, in the order of its line, counted from 1.
enum class UserElement { Name = 1, Switches, Unit, Default, Comments, Last = Comments };
enum class TraceElement {
  Trigger = 1,
  Date,
  Parameters,
  Name,
  Switches,
  Unit,
  Default,
  Comments,
  OverlapDetail,
  Last = OverlapDetail
};
enum class RealTraceElement {
  Info = 1,
  Parameters,
  Name,
  Switches,
  Unit,
  Default,
  Comments,
  Last = Comments
};
enum class MechaElement { Resonance = 1, Notch, Measurement, Date, Comments, Last = Comments };
enum class SimElement {
  Reference = 1,
  ServoAndMotor,
  Mechanics,
  Date,
  Parameters,
  Name,
  Switches,
  Unit,
  Default,
  Comments,
  TimeComparison,
  ParameterComparison,
  OverlapDetail,
  Last = OverlapDetail
};

template <typename Element>
inline constexpr std::size_t ElementCount = static_cast<std::size_t>(Element::Last);

// The values of an option key, 1 on and 0 off. They can also be reached by index, which counts from 0.
template <typename Element>
struct OptionElements : std::array<std::int16_t, ElementCount<Element>> {
  using Values = std::array<std::int16_t, ElementCount<Element>>;
  using Values::operator[];

  std::int16_t& operator[](Element element) { return (*this)[IndexOf(element)]; }
  const std::int16_t& operator[](Element element) const { return (*this)[IndexOf(element)]; }
  bool IsOn(Element element) const { return (*this)[element] == 1; }

 private:
  static std::size_t IndexOf(Element element) {
    const auto number = static_cast<std::size_t>(element);
    assert(number >= 1 && number <= ElementCount<Element>);
    return number - 1;
  }
};

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
  OptionElements<UserElement> UserOption{};
  HeaderOptions PrmWizHeader;
  HeaderOptions TraceHeader;
  OptionElements<TraceElement> TraceOption{};
  HeaderOptions RealTraceHeader;
  OptionElements<RealTraceElement> RealTraceOption{};
  HeaderOptions MechaHeader;
  OptionElements<MechaElement> MechaOption{};
  HeaderOptions SimHeader;
  OptionElements<SimElement> SimOption{};
  HeaderOptions IdxTblHeader;
  IdxTblOptions IdxTblOption;
  HeaderOptions ZoneTblHeader;
  std::int16_t ZoneTblOption = 0;
  HeaderOptions JogTblHeader;
  std::int16_t JogTblOption = 0;
};

}  // namespace tarvis
