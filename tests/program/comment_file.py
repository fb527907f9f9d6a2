"""IdxJogTbl.tmp, the host's smallest file, with a comment in any letters."""
from print_file import PrintFile


def write_comment(folder, comment, code_page):
    file = PrintFile("Jog Speed Table File", "", "")
    file.line("Speed-Unit", "r/min")
    file.line("JspdCnt", 0)
    file.line("CommentCnt", 1)
    file.line("Comment", comment)
    file.write(folder / "IdxJogTbl.tmp", "utf-8" if code_page == 65001 else f"cp{code_page}")
