"""Data files of the host that are as large as one likes."""
import servo_pack
from print_file import PrintFile, write_parameters


def many_parameters(count):
    known = servo_pack.PARAMETERS
    return [servo_pack.Parameter(f"S-{i}", known[i % len(known)].name, str(i * 7 % 9973), "100", "min-1")
            for i in range(count)]


def write_parameter_file(folder, count):
    """`count` parameters; one of a hundred is a switch."""
    parameters = many_parameters(count)
    digits = tuple(servo_pack.Digit(k, 1, "1", "0", "Function of the Digit", "Enabled while the axis moves")
                   for k in range(4))
    switches = [servo_pack.Switch(parameter.no, "1", "0", "name", digits) for parameter in parameters[::107]]
    file = PrintFile("Parameter File", servo_pack.MODELS, "large.prm")
    write_parameters(file, parameters, switches, "comment")
    file.write(folder / "User.tmp")
