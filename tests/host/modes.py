"""The data files of each mode but the simulation's, filled with a plausible job of the fictional servo pack."""
import math

import graphs
from bitmap import Bitmap
from print_file import PrintFile, write_parameters
from servo_pack import COMMENT, MODELS, PARAMETERS, SWITCHES

DATE = "11/20/2026 15:48:10"


def parameter_block(file, parameters=PARAMETERS):
    write_parameters(file, parameters, SWITCHES, COMMENT)


def write_user(folder):
    file = PrintFile("Parameter File", MODELS, "axis1.prm")
    parameter_block(file)
    file.write(folder / "User.tmp")


def draw_pair(draw, folder, name, *arguments):
    """Draws a picture in colour and in black and white; the colour one's name ends in C."""
    paths = folder / f"{name}C.emf", folder / f"{name}.emf"
    for coloured, path in zip((True, False), paths):
        draw(coloured, *arguments, path)
    return paths


def picture_keys(file, key, paths):
    for suffix, path in zip(("C", ""), paths):
        file.line(key + suffix, path)


def cursor_rows(file):
    file.line("CursolSelect", 2)
    file.line("CursolInfo1", "58.0", "134.0", "76.0", "Time [ms]")
    file.line("CursolInfo2", "2312", "1540", "-772", "Motor Speed [min-1], at the cursors")


def channels(file):
    file.line("DataTrace1", "Speed Reference", "1", "min-1")
    file.line("DataTrace2", "Motor Speed", "1", "min-1")
    file.line("DataTrace3", "Torque Reference", "1", "%")
    file.line("I/Otrace1", "Drive Enable", "1", "")
    file.line("I/Otrace2", "In Position", "1", "")
    file.line("I/Otrace3", "", "0", "")


def write_recording(file, function, folder, n, suffix, overlapped):
    """The curves of data set `n` of a trace or a simulation, with their legends, cursors and channels."""
    picture_keys(file, f"{function}Graph", draw_pair(graphs.motion, folder, f"{function}Graph{suffix}", 4.0 * n))
    notes = draw_pair(graphs.legend, folder, f"{function}Note{suffix}", ("Speed Reference", "Motor Speed", "Torque"))
    picture_keys(file, f"{function}Note", notes)
    levels = folder / f"{function}IONote{suffix}.emf"
    graphs.io_legend(levels)
    picture_keys(file, f"{function}IONote", (levels, levels))
    cursor_rows(file)
    file.line("OverlapMode", int(overlapped > 0))
    file.line("OverlapNum", overlapped)
    channels(file)


def write_trace(folder, overlapped=0, parameters=PARAMETERS):
    """`overlapped` data sets lie over one another; 0 for a single trace."""
    names = [""] + [str(n) for n in range(1, overlapped + 1)]
    for n, suffix in enumerate(names):
        file = PrintFile("Trace File", MODELS, f"axis1_run{n}.trc" if suffix else "axis1.trc")
        write_recording(file, "Trace", folder, n, suffix, overlapped)
        file.line("TriggerType", "Trigger Type", "Speed Reference")
        file.line("TriggerLevel", "Trigger Level", "1,200 min-1")
        file.line("EdgeType", "Edge", "Rising")
        file.line("PreTrigger", "Pre-Trigger", "20 %")
        file.line("SamplingCycle", "Sampling Cycle", "0.25 ms")
        file.line("GetDataDate", DATE)
        parameter_block(file, parameters)
        file.write(folder / f"Trace{suffix}.tmp")


def write_real_trace(folder):
    file = PrintFile("Real-Time Trace File", MODELS, "axis1.rtt")
    picture_keys(file, "RealTraceGraph", draw_pair(graphs.motion, folder, "RealTraceGraph", 0.0))
    notes = draw_pair(graphs.legend, folder, "RealTraceNote", ("Speed Reference", "Motor Speed", "Torque"))
    picture_keys(file, "RealTraceNote", notes)
    cursor_rows(file)
    file.line("StartTime", "Start Time", DATE)
    file.line("SamplingCycle", "Sampling Cycle", "10 ms")
    file.line("DispData", "Displayed Data", "0 to 200 ms")
    parameter_block(file)
    file.write(folder / "RealTrace.tmp")


def write_mecha(folder):
    file = PrintFile("Mechanical Analysis File", MODELS, "axis1.mec")
    picture_keys(file, "MechaGraph1", draw_pair(graphs.gain, folder, "MechaGain"))
    picture_keys(file, "MechaGraph2", draw_pair(graphs.phase, folder, "MechaPhase"))
    file.line("CursolSelect", 1)
    file.line("CursolName", "Cursor A", "Cursor B", "B-A")
    file.line("CursolInfo1", "851.1", "631.0", "-220.1", "Frequency [Hz]")
    file.line("CursolInfo2", "-0.7", "-35.6", "-34.9", "Gain [dB]")
    file.line("CursolInfo3", "-207.2", "-118.4", "88.8", "Phase [deg]")
    for key, row in {
            "Resonance": ("Resonance Frequency 1", "851", "Hz"), "Resonance1": ("Resonance Frequency 2", "1422", "Hz"),
            "Resonance2": ("Resonance Frequency 3", "", "Hz"), "AntiResonance": ("Anti-Resonance", "631", "Hz"),
            "Notch": ("Notch Filter", "860", "Hz"), "RunMode": ("Operation", "Torque control", ""),
            "AddVibSignal": ("Excitation", "Pseudo random", ""), "CycleCount": ("Cycles", "4", "times"),
            "AddVibRange": ("Amplitude", "30", "%"), "MeasureCount": ("Measurements", "2", "times"),
            "SamplingCycle": ("Sampling Cycle", "0.125", "ms"), "AddVibTime": ("Excitation Time", "1.02", "s")}.items():
        file.line(key, *row)
    file.line("GetDataDate", DATE)
    file.line("CommentCnt", 1)
    file.line("Comment", "Fork at half height, load 12 kg.")
    file.write(folder / "Mecha.tmp")


def _schematic(path):
    """The servo pack with its encoder; the wizard's relays and texts are on a grid beside it."""
    picture = Bitmap(640, 420)
    picture.path((44, 60), (44, 405))
    picture.box(272, 60, 414, 405, inside=0xF0FFE8)
    picture.box(520, 150, 600, 270, inside=0xFFF4E0)
    picture.path((44, 60), (272, 60))
    picture.path((414, 180), (520, 180))
    picture.path((414, 240), (520, 240))
    picture.save(path)


def _relay(path):
    """A wire below the relay's texts, with the contact at its left."""
    picture = Bitmap(180, 28)
    picture.path((0, 23), (12, 23))
    picture.box(12, 18, 32, 27)
    picture.path((32, 23), (180, 23))
    picture.save(path)


def write_wizard(folder):
    base, relay = folder / "schematic.bmp", folder / "relay.bmp"
    _schematic(base)
    _relay(relay)
    file = PrintFile("Parameter Wizard File", MODELS, "axis1.wiz")
    file.line("BASE", base)
    file.line("CONTROL", "Control Method", "Position control (pulse train)")
    file.line("RATIO", "Encoder Dividing Ratio", "4096", "[P/R]")
    for slot, name in enumerate(("Out 1", "Out 2", "Out 3", "Out 4"), 1):
        file.line("OUTNUM", slot, name)
    for slot, name in enumerate(("In Position", "Rotating", "Ready", "Fault", "Phase A", "Phase B", "Index"), 1):
        file.line("OUTSTR", slot, name)
    for slot, name in enumerate(("Enable", "Control Switch", "Limit Right", "Limit Left", "Reset", "Torque Limit, Right", "Torque Limit, Left", "spare"), 1):
        file.line("RY", slot, 39 + slot, relay if slot < 7 else "", name)
    file.write(folder / "UPWizard.tmp")


def write_program_table(folder, extended=False, steps=64):
    file = PrintFile("Program Table File", MODELS, "axis1.idx")
    for key, caption, unit in (("Position_Unit", "Position", "reference unit"), ("Speed_Unit", "Speed", "x1000 r.u./min"),
                               ("Rdst_Unit", "RDST", "reference unit"), ("Rspd_Unit", "RSPD", "x1000 r.u./min"),
                               ("AccDec_Unit", "Acceleration", "(x1000 r.u./min)/ms")):
        file.line(key, caption, unit)
    file.line("TblType", int(extended))
    file.line("IndexCnt", steps)
    for step in range(steps):
        used = step % 16 < 11
        moves = (f"{'I' if step % 2 else ''}{step * 12500:+d}", 3000 + 20 * step, "-", "-", 120, 150, "NNNZ",
                 "IT100", 1, "END" if step % 16 == 10 else step + 1)
        file.line("Index", step, *(moves if used else ("",) * 10), int(used))
    file.line("CommentCnt", 1)
    file.line("Comment", "Steps 0 to 10 fetch a box, steps 16 to 26 put it down.")
    file.write(folder / "IdxIdxTbl.tmp")


def write_zone_table(folder, zones=32):
    file = PrintFile("Zone Table File", MODELS, "axis1.zon")
    file.line("Pos-Unit", "reference unit")
    file.line("ZoneCnt", zones)
    for zone in range(zones):
        file.line("Zone", zone, f"{zone * 20000 - 320000:+d}", f"{zone * 20000 - 300001:+d}")
    file.line("CommentCnt", 0)
    file.line("Comment", "Zone 16 is the free space above the conveyor.")
    file.write(folder / "IdxZoneTbl.tmp")


def write_jog_table(folder, speeds=16):
    file = PrintFile("Jog Speed Table File", MODELS, "axis1.jog")
    file.line("Speed-Unit", "x1000 r.u./min")
    file.line("JspdCnt", speeds)
    for speed in range(speeds):
        file.line("Jspd", speed, round(100 * math.pow(1.4, speed)))
    file.line("CommentCnt", 1)
    file.line("Comment", "Speeds grow by 40 % from step to step.")
    file.write(folder / "IdxJogTbl.tmp")
