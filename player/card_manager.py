"""The card manager, which hands over recipients to the program in files."""


def hand_over(application, tab, recipients):
    """Writes the recipients, (name, number, title), and then the signal, which names the tab to open."""
    folder = application / "temp"
    folder.mkdir(exist_ok=True)
    lines = "".join(f"0\t{name}\t{number}\t{title}\r\n" for name, number, title in recipients)
    (folder / "tmpman.txt").write_bytes(lines.encode("cp949"))
    (folder / "isend.text").write_bytes(str(tab).encode("ascii"))
