"""User.tmp, the host's file of a parameter list, as long as a test needs it."""
from print_file import PrintFile, write_parameters
from servo_pack import Parameter


def gains(count):
    return [Parameter(f"S-{n}", "Gain", str(n), "100", "Hz") for n in range(count)]


def write_user_file(folder, parameters):
    """Without switches and comment."""
    file = PrintFile("Parameter File", "", "long.prm")
    write_parameters(file, parameters, (), "")
    file.write(folder / "User.tmp")
