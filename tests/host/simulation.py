"""The data files of a dynamics simulation of the fictional servo pack: one run, or several that overlap."""
from bitmap import Bitmap
from modes import DATE, parameter_block, write_recording
from print_file import PrintFile
from servo_pack import MODELS, PARAMETERS

MOTOR = {
    "MtRatedOutput": ("Rated Output", "750", "W"), "MtRatedTorque": ("Rated Torque", "2.39", "Nm"),
    "MtPeakTorque": ("Peak Torque", "7.16", "Nm"), "MtMaxCurrent": ("Maximum Current", "13.4", "A"),
    "MtRatedCurrent": ("Rated Current", "4.1", "A"), "MtRatedSpeed": ("Rated Speed", "3000", "min-1"),
    "MtMaxSpeed": ("Maximum Speed", "5000", "min-1"), "MtTorqueConstant": ("Torque Constant", "0.64", "Nm/A"),
    "MtRoterMoment": ("Rotor Moment of Inertia", "0.672", "kgcm2"),
    "MtRatedPowerRate": ("Rated Power Rate", "84.8", "kW/s"),
    "MtRatedAnglulerAcc": ("Rated Angular Acceleration", "35500", "rad/s2"),
    "MtInertiaTimeConstant": ("Inertia Time Constant", "0.56", "ms"),
    "MtInductionTimeConstant": ("Inductive Time Constant", "5.4", "ms"),
    "MtBrakeCompensation": ("Brake", "None", ""), "MtOilSealCompensation": ("Oil Seal", "None", ""),
    "PgType": ("Encoder", "17 bit incremental", ""), "MtOpType": ("Motor Option", "Straight shaft", ""),
    "FcType": ("Coupling", "Rigid", ""), "ResPoint": ("Resonance", "851", "Hz"),
    "AntiResPoint": ("Anti-Resonance", "631", "Hz"),
}
PATTERN = {
    "StartTime": ("Start Time", "ms", 20, 40, 60), "AccTime": ("Acceleration Time", "ms", 40, 30, 20),
    "RunTime": ("Running Time", "ms", 60, 50, 40), "DecTime": ("Deceleration Time", "ms", 40, 30, 20),
    "EndRefTime": ("End Time", "ms", 160, 150, 140), "AccOffsetSpd": ("Offset at Start", "min-1", 0, 0, 0),
    "DecOffsetSpd": ("Offset at End", "min-1", 0, 0, 0), "MaxSpd": ("Maximum Speed", "min-1", 2400, 1800, 1200),
}


def _model(path):
    """A ball screw with motor and table."""
    picture = Bitmap(520, 260)
    picture.box(20, 90, 120, 190, inside=0xD8E4F4)
    picture.fill(120, 132, 150, 148, 0x606060)
    picture.box(150, 110, 180, 170, inside=0xF4E4C8)
    picture.fill(180, 136, 490, 144, 0x606060)
    picture.box(260, 80, 380, 200, inside=0xE4F4D8)
    picture.path((20, 220), (500, 220))
    picture.save(path)


def _run(folder, n, suffix, overlapped):
    file = PrintFile("Dynamics Simulation File", MODELS, f"axis1_sim{n}.sim" if suffix else "axis1.sim")
    write_recording(file, "Sim", folder, n, suffix, overlapped)
    file.line("MotorType", 0)
    if overlapped and not suffix:
        _comparison(file, overlapped)
    file.line("Control", "Control Method", "Position control", "")
    file.line("Ref", "Reference", "Trapezoid", "")
    file.line("SettingTime", "Settling Time", f"{12.4 + n:.1f}", "ms")
    file.line("SamplingCycle", "Sampling", "0.25", "ms")
    file.line("PatternSetting", "Pattern", 0, "Trapezoid of three moves", 3)
    file.line("SimTime", "Time", "200", "ms")
    for key, (name, unit, *values) in PATTERN.items():
        file.line(key, name, unit, *values)
    file.line("FilType", "Filter", "Average movement", "")
    file.line("FilTime", "Filter Time", "4.0", "ms")
    for key, row in MOTOR.items():
        file.line(key, *row)
    file.line("MechaType", "Mechanism", "Ball screw", folder / "model.bmp")
    file.line("Inertia", "Moment of Inertia", "2.28\\r\\n(340 %)", "kgcm2\\r\\n(of the rotor)")
    file.line("GetDataDate", DATE)
    parameter_block(file)
    file.write(folder / f"Sim{suffix}.tmp")


def _comparison(file, overlapped):
    for n in range(overlapped):
        file.line("CmpTime", f"axis1_sim{n + 1}.sim", f"{13.4 + n:.1f}", "Position control")
    compared = [p for p in PARAMETERS if p.unit in ("Hz", "ms", "1/s")]
    file.line("CmpUserNum", len(compared))
    for p in compared:
        file.line("CmpUser", p.no, *[p.value if n % 2 == 0 else p.default for n in range(overlapped)])


def write_simulation(folder, overlapped=0):
    """`overlapped` simulations lie over one another; 0 for a single one."""
    _model(folder / "model.bmp")
    for n in range(overlapped + 1):
        _run(folder, n, str(n) if n else "", overlapped)
