// The program table, the zone table and the jog speed table, as IdxIdxTbl.tmp, IdxZoneTbl.tmp and
// IdxJogTbl.tmp describe them. None of them is emptied by a read; a count line drops the rows.
#pragma once

#include <cstdint>
#include <string>

#include "text/checked_array.h"

namespace tarvis {

// A caption and its unit; the unit may hold CR LF.
struct UnitRow {
  std::string Caption;
  std::string Unit;
};

// One program step.
struct IdxRow {
  std::string Step;
  std::string Pos;
  std::string Spd;
  std::string Rdst;
  std::string Rspd;
  std::string Acc;
  std::string Dec;
  std::string Pout;
  std::string Event;
  std::string Loop;
  std::string Next;
  std::int16_t Defined = 0;  // 1: the step holds a program
};

struct IdxTblData {
  UnitRow Position_Unit;
  UnitRow Speed_Unit;
  UnitRow Rdst_Unit;
  UnitRow Rspd_Unit;
  UnitRow AccDec_Unit;
  std::int16_t TblType = 0;  // 0 plain table, 1 table with ACC and DEC
  std::int16_t IndexCnt = 0;
  CheckedArray<IdxRow> Index{"IdxTblData.Index"};  // 0 to IndexCnt, the last one a spare
};

struct ZoneRow {
  std::int16_t Id = 0;
  std::string ZoneN;
  std::string ZoneP;
};

struct ZoneTblData {
  std::string PosUnit;  // may hold CR LF
  std::int16_t ZoneCnt = 0;
  CheckedArray<ZoneRow> Zone{"ZoneTblData.Zone"};  // 0 to ZoneCnt, the last one a spare
};

struct JogRow {
  std::int16_t Id = 0;
  std::string Speed;
};

struct JogTblData {
  std::string SpeedUnit;  // may hold CR LF
  std::int16_t JspdCnt = 0;
  CheckedArray<JogRow> Jspd{"JogTblData.Jspd"};  // 0 to JspdCnt, the last one a spare
};

}  // namespace tarvis
