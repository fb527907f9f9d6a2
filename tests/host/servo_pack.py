"""A fictional servo pack with its parameters, as the host reads them from a drive."""
from dataclasses import dataclass

MODELS = "Servo Pack: KDX-08A2B   Servo Motor: KMX-08A2C   (800 W, 17 bit encoder)"


@dataclass(frozen=True)
class Parameter:
    no: str
    name: str
    value: str
    default: str
    unit: str


@dataclass(frozen=True)
class Digit:
    """One group of digits of a switch parameter: its place, what is set, and what that means."""
    first: int
    count: int
    value: str
    default: str
    heading: str
    meaning: str


@dataclass(frozen=True)
class Switch:
    no: str
    value: str
    default: str
    name: str
    digits: tuple


def _parameters(lines):
    return [Parameter(*(field.strip() for field in line.split("|"))) for line in lines.strip().splitlines()]


# The hexadecimal ones are switch parameters: each digit means something of its own.
PARAMETERS = _parameters("""
S-000 | Basic Function Selection | 0x0011 | 0x0000 | -
S-001 | Stop Method Selection | 0x0102 | 0x0000 | -
S-002 | Encoder Selection | 0x0100 | 0x0000 | -
S-003 | Analog Monitor Selection | 0x0302 | 0x0002 | -
S-006 | Monitor 1 Magnification | 1.00 | 1.00 | times
S-007 | Monitor 2 Magnification | 0.50 | 1.00 | times
S-100 | Speed Loop Gain | 62.0 | 40.0 | Hz
S-101 | Speed Loop Integral Time Constant | 15.00 | 20.00 | ms
S-102 | Position Loop Gain | 64.0 | 40.0 | 1/s
S-103 | Moment of Inertia Ratio | 340 | 100 | %
S-104 | Second Speed Loop Gain | 40.0 | 40.0 | Hz
S-105 | Second Speed Loop Integral Time Constant | 20.00 | 20.00 | ms
S-106 | Second Position Loop Gain | 40.0 | 40.0 | 1/s
S-107 | Approach Speed Offset | 0 | 0 | min-1
S-108 | Approach Speed Window | 7 | 7 | reference unit
S-109 | Feed Forward | 30 | 0 | %
S-10A | Feed Forward Filter Time Constant | 0.50 | 0.00 | ms
S-10B | Gain Application Selection | 0x0004 | 0x0000 | -
S-10C | Mode Switch, Torque Reference | 200 | 200 | %
S-10D | Mode Switch, Speed Reference | 0 | 0 | min-1
S-10E | Mode Switch, Acceleration | 0 | 0 | min-1/s
S-10F | Mode Switch, Position Error | 0 | 0 | reference unit
S-110 | Automatic Tuning Selection | 0x1401 | 0x0010 | -
S-120 | Friction Compensation Gain | 100 | 100 | %
S-121 | Second Friction Compensation Gain for the Gain Set That Automatic Switching Selects While the Axis Is Being Held at Its Target Position | 100 | 100 | %
S-200 | Position Control Reference Form | 0x0004 | 0x0000 | -
S-201 | Encoder Output Resolution | 4096 | 2048 | P/Rev
S-204 | Electronic Gear Ratio, Numerator | 131072 | 4 | -
S-205 | Electronic Gear Ratio, Denominator | 10000 | 1 | -
S-207 | Position Control Function | 0x0010 | 0x0000 | -
S-20A | External Scale Pitches per Motor Rotation | 32768 | 32768 | P/Rev
S-216 | Position Reference Acceleration Time Constant | 4.0 | 0.0 | ms
S-217 | Average Movement Time of Position Reference | 0.0 | 0.0 | ms
S-300 | Speed Reference Input Gain | 6.00 | 6.00 | V / rated speed
S-301 | Internal Set Speed 1 | 100 | 100 | min-1
S-302 | Internal Set Speed 2 | 200 | 200 | min-1
S-303 | Internal Set Speed 3 | 1500 | 300 | min-1
S-304 | Jog Speed | 500 | 500 | min-1
S-305 | Soft Start Acceleration Time | 100 | 0 | ms
S-306 | Soft Start Deceleration Time | 120 | 0 | ms
S-310 | Vibration Detection Selection | 0x0001 | 0x0000 | -
S-400 | Torque Reference Input Gain | 3.0 | 3.0 | V / rated torque
S-401 | First Torque Reference Filter Time Constant | 0.38 | 1.00 | ms
S-402 | Forward Torque Limit | 300 | 800 | %
S-403 | Reverse Torque Limit | 300 | 800 | %
S-404 | Forward External Torque Limit | 100 | 100 | %
S-405 | Reverse External Torque Limit | 100 | 100 | %
S-408 | Torque Function Selection | 0x0101 | 0x0000 | -
S-409 | First Notch Filter Frequency | 860 | 5000 | Hz
S-40A | First Notch Filter Q Value | 0.70 | 0.70 | -
S-40C | Second Notch Filter Frequency | 1420 | 5000 | Hz
S-40D | Second Notch Filter Q Value | 1.10 | 0.70 | -
S-500 | In-Position Window | 10 | 7 | reference unit
S-501 | Standstill Level | 10 | 10 | min-1
S-502 | Motion Detection Level | 20 | 20 | min-1
S-503 | Speed Reached Window | 10 | 10 | min-1
S-506 | Delay from Brake Reference to Disable | 5 | 0 | 10 ms
S-507 | Speed Level for Brake Reference Output | 100 | 100 | min-1
S-50A | Input Signal Selection 1 | 0x2100 | 0x2100 | -
S-50B | Input Signal Selection 2 | 0x6543 | 0x6543 | -
S-50E | Output Signal Selection 1 | 0x3211 | 0x3211 | -
S-520 | Excessive Position Error Alarm Level | 5242880 | 262144 | reference unit
S-600 | Regenerative Resistor Capacity | 10 | 0 | 10 W
""")


def _switch(no, *digits):
    """The switch that breaks down parameter `no`: its groups from digit 0 on, four in all."""
    parameter = next(p for p in PARAMETERS if p.no == no)
    groups = tuple(digits) + (Digit(0, 0, "", "", "", ""),) * (4 - len(digits))
    return Switch(no, parameter.value, parameter.default, parameter.name, groups)


SWITCHES = [
    _switch("S-000",
            Digit(0, 1, "1", "0", "Rotation Direction", "Clockwise rotation is forward (reverse rotation mode)."),
            Digit(1, 1, "1", "0", "Control Method", "Position control: pulse train reference."),
            Digit(2, 2, "00", "00", "Axis Address", "The axis answers to address 0.")),
    _switch("S-001",
            Digit(0, 1, "2", "0", "Stop at Disable or Alarm", "Lets the motor coast to a stop."),
            Digit(1, 1, "0", "0", "Stop at Limit Switch", "As at disable."),
            Digit(2, 1, "1", "0", "Power Supply", "The main circuit takes direct current.\r\n"
                                                   "Connect it before the control circuit is switched on."),
            Digit(3, 1, "0", "0", "Warning Code Output", "Outputs alarm codes only.")),
    _switch("S-002",
            Digit(0, 2, "00", "00", "Option Card", "Not used."),
            Digit(2, 1, "1", "0", "Absolute Encoder Usage", "Uses the absolute encoder as an incremental one.")),
    _switch("S-003",
            Digit(0, 2, "02", "02", "Analog Monitor 1", "Torque reference (1 V / 100 %)."),
            Digit(2, 2, "03", "00", "Analog Monitor 2", "Position error (0.05 V / reference unit).")),
    _switch("S-10B",
            Digit(0, 1, "4", "0", "Mode Switch", "Has no mode switch."),
            Digit(1, 1, "0", "0", "Speed Loop Control", "Proportional and integral.")),
    _switch("S-110",
            Digit(0, 1, "1", "0", "Automatic Tuning", "Tunes at all times."),
            Digit(1, 1, "0", "1", "Speed Feedback Compensation", "Enabled."),
            Digit(2, 1, "4", "0", "Rigidity", "Level 4 of 10: belt drive."),
            Digit(3, 1, "1", "0", "Load", "Large changes: the inertia ratio is estimated while the axis moves.")),
    _switch("S-200",
            Digit(0, 1, "4", "0", "Reference Pulse Form", "Two phase pulse train, 90 degrees apart, times 4."),
            Digit(1, 1, "0", "0", "Clear Signal", "Clears the error counter while the signal is high.")),
    _switch("S-207",
            Digit(0, 1, "0", "0", "Reference Filter", "Acceleration and deceleration filter."),
            Digit(1, 1, "1", "0", "Feed Forward by Analog Input", "Uses the speed reference input.")),
    _switch("S-310", Digit(0, 1, "1", "0", "Vibration Detection", "Warns when vibration is found.")),
    _switch("S-408",
            Digit(0, 1, "1", "0", "First Notch Filter", "Enabled."),
            Digit(2, 1, "1", "0", "Second Notch Filter", "Enabled.")),
    _switch("S-50A",
            Digit(0, 1, "0", "0", "Input Allocation", "The terminals keep their standard signals."),
            Digit(1, 1, "0", "0", "Drive Enable", "Terminal 40, on while the input is low.")),
    _switch("S-50E",
            Digit(0, 1, "1", "1", "In Position", "Terminals 25 and 26."),
            Digit(1, 1, "1", "1", "Speed Reached", "Terminals 25 and 26."),
            Digit(2, 2, "32", "32", "Motion Detection and Drive Ready", "Terminals 27 to 30.")),
]

COMMENT = ("Axis 1 of the palletizer, tuned with a load of 12 kg on the fork.\r\n"
           "The notch filters stand on the two resonances that the analysis of this morning found.\r\n"
           "Do not raise the position loop gain above 70: the mast begins to swing.")
