"""A print options file with a cover letter, as earlier runs of the dialog would have left it."""
from print_file import escaped

ADDRESS = "14 Harbour Lane, Old Quay\r\n20459 Northport"


def write_options_with_cover(path, logo, coloured):
    """Every key, in the order in which the program itself writes them."""
    header = "1,1,1,1,1"
    lines = [
        "File-Spec,4", "FileType,PrintOption TmpFile For Print", "Made-by,Quillex Ver2.00",
        "DateTime,2026/11/20 16:00:00", "Cover,1", "SelectCover,1", "DrowCorp,Northport Motion Ltd.",
        f"DrowSect,{escaped('Drive Engineering' + chr(13) + chr(10) + 'Palletizer Group')}", "DrowName,J. Halvorsen",
        "DrowEmail,j.halvorsen@northport-motion.example", "DrowZip,20459", f"DrowAdr,{escaped(ADDRESS)}",
        "DrowTEL,+49 40 555 0100", "DrowFAX,+49 40 555 0101", f"DrowLogo,{logo}",
    ]
    for n, company in ((1, "Meridian Packaging"), (2, "Solvang Cranes"), (3, "Tern Islands Dairy")):
        lines += [f"User{n}Title,Commissioning of axis 1", f"User{n}Corp,{company}", f"User{n}Sect,Maintenance",
                  f"User{n}Name,M. Okafor", f"User{n}Adr,{escaped(ADDRESS)}"]
    greeting = "Thank you for choosing our drives.\r\nPlease find the settings of your machine on the next pages."
    lines += ["GreetingCnt,2", f"Greeting,{escaped(greeting)}",
              f"UserHeader,{header},Parameters", "UserOption,1,1,1,1,1",
              "PrmWizHeader,1,1,1,0,1,Parameter Wizard", "PrmWizOption,",
              f"TraceHeader,{header},Tracing", "TraceOption,1,1,1,1,1,1,1,1,1",
              f"RealTraceHeader,{header},Real-Time Tracing", "RealTraceOption,1,1,1,1,1,1,1",
              f"MechaHeader,{header},Mechanical Analysis", "MechaOption,1,1,1,1,1",
              f"SimHeader,{header},Dynamics Simulation", "SimOption,1,1,1,1,1,1,1,1,1,1,1,1,1",
              f"ColorType,{int(coloured)}",
              f"IdxTblHeader,{header},Program Table", "IdxTblOption,0,,,1",
              f"ZoneTblHeader,{header},Zone Table", "ZoneTblOption,1",
              f"JogTblHeader,{header},Jog Speed Table", "JogTblOption,1"]
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))
