# SPDX-License-Identifier: MIT
"""Saves a report of every type and opens all copies, from another folder, in one start of a real browser.

Use: saved_in_browser.py --program MERO_BATCH --root PROJECT

Checks the rendered pages: diacritics, the logo, bold row of the chosen rain, rules and tables in the file's order.
No copy may refer to anything outside itself. Skipped if there is no browser.
"""

import argparse
import html
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
TIME_LIMIT_S = 90
TYPES = {1: "Plošné vsakování", 2: "Vsakování v průlezích", 3: "Vsakování v kombinovaném objektu",
         4: "Vsakování rýhové a kombinace rýhy a drénu", 5: "Šachtové vsakování", 6: "Vsakovací nádrže"}
HOSTILE = '<img src=http://127.0.0.1:9/x.gif><script>document.title=1</script>'


def script(kind: int) -> str:
    choose = ("click optSelType(1)" if kind == 6
              else f"click optSelType(0)\nfocus cboSelType\nselect cboSelType {kind}")
    return f"""tab 0
set txtProjName "Žluťoučký kůň {kind}"
set txtInvestor "Město Ždírec {HOSTILE}"
click cmdEdit(0)
select frmIntDialog.cboSelStanice "Brno"
select frmIntDialog.cboSelPeriod "0.2"
cell frmIntDialog.fgIntDeste 3 2
click frmIntDialog.cmdOK
click cmdEdit(1)
cell frmDialog.fgSoucPovrchOdtok 8 3
set frmDialog.txtPlocha "800"
click frmDialog.cmdZapsat
click frmDialog.OKButton
set txtSoucFiltrace "1e-4"
tab 1
{choose}
tab 3
answer-save "../kopie/{kind}.html"
click cmdSaveResults
"""


def save_copies(program: Path, root: Path, scratch: Path) -> list[str]:
    folder = scratch / "program"
    folder.mkdir()
    (scratch / "kopie").mkdir()
    shutil.copy(root / "data" / "mero.mdb", folder)
    shutil.copytree(root / "Webs", folder / "Webs")
    wrong = []
    for kind in TYPES:
        done = subprocess.run([program, "run", "--folder", folder, "-"], input=script(kind), text=True,
                              capture_output=True, timeout=TIME_LIMIT_S, check=False)
        if '"saved"' not in done.stdout:
            wrong.append(f"type {kind}: not saved: {done.stdout} {done.stderr}")
    # The copies must not depend on the folder that they come from.
    shutil.rmtree(folder)
    return wrong


PROBE = """<!DOCTYPE html><meta charset=utf-8><body><script>
const names = %s; let left = names.length; const found = {};
for (const name of names) {
  const frame = document.createElement('iframe');
  frame.width = 900;
  frame.onload = () => {
    const page = frame.contentDocument, body = page.body;
    const order = [...body.querySelectorAll('hr, table')].map(e => [e.tagName, e.getBoundingClientRect().top]);
    found[name] = {
      text: body.innerText, logo: [...page.images].map(i => i.naturalWidth), title: page.title,
      charset: page.characterSet, order,
      bold: [...body.querySelectorAll('table[border="1"]')[0].querySelectorAll('tr')].map(
        row => getComputedStyle(row.cells[0]).fontWeight),
    };
    if (--left === 0) {
      const out = document.createElement('pre'); out.id = 'found'; out.textContent = JSON.stringify(found);
      document.body.replaceChildren(out);
    }
  };
  frame.src = name; document.body.append(frame);
}
</script>"""


def look(browser: str, scratch: Path) -> dict:
    import json

    names = [f"{kind}.html" for kind in TYPES]
    probe = scratch / "kopie" / "probe.html"
    probe.write_text(PROBE % json.dumps(names), encoding="utf-8")
    done = subprocess.run(
        [browser, "--headless", "--no-sandbox", "--disable-gpu", "--disable-extensions", "--no-first-run",
         "--allow-file-access-from-files", f"--user-data-dir={scratch / 'profile'}", "--virtual-time-budget=8000",
         "--dump-dom", probe.as_uri()], text=True, capture_output=True, timeout=TIME_LIMIT_S, check=False)
    match = re.search(r'<pre id="found">(.*?)</pre>', done.stdout, re.DOTALL)
    return json.loads(html.unescape(match.group(1))) if match else {}


def judge(kind: int, seen: dict, copy: str) -> list[str]:
    wrong = []
    text = seen["text"]
    for wanted in (f"Žluťoučký kůň {kind}", f"Město Ždírec {HOSTILE}", TYPES[kind], "Návrhový déšť", "Datum a čas výpočtu"):
        if wanted not in text:
            wrong.append(f"no {wanted!r} in {text[:300]!r}")
    if seen["charset"] != "UTF-8":
        wrong.append(f"read as {seen['charset']}")
    # The tag of another picture is text.
    if seen["logo"] != [200]:
        wrong.append(f"pictures {seen['logo']}")
    if seen["title"]:
        wrong.append("a script ran")
    # The header, and the row of the chosen rain: the picked one, or the critical one that a live design found.
    bold = [index for index, weight in enumerate(seen["bold"]) if int(weight) >= 700]
    if len(bold) != 2 or bold[0] != 0 or (kind != 2 and bold[1] != 3):
        wrong.append(f"bold rows {seen['bold']}")
    tops = [top for _, top in seen["order"]]
    if tops != sorted(tops):
        wrong.append(f"not in the file's order: {seen['order']}")
    own = copy.replace(HOSTILE.replace("<", "&lt;"), "")
    if re.search(r"https?:|file:|src=(?!\"data:)|href=|url\(", own):
        wrong.append("the copy refers to something outside itself")
    return wrong


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", type=Path, required=True)
    parser.add_argument("--root", type=Path, required=True)
    arguments = parser.parse_args()
    browser = shutil.which("chromium") or shutil.which("chromium-browser") or shutil.which("google-chrome")
    if browser is None:
        print("there is no browser")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="mero-browser-") as name:
        scratch = Path(name).resolve()
        wrong = save_copies(arguments.program.resolve(), arguments.root, scratch)
        found = {} if wrong else look(browser, scratch)
        for kind in TYPES:
            seen = found.get(f"{kind}.html")
            if seen is None:
                wrong.append(f"type {kind}: the browser showed nothing")
                continue
            copy = (scratch / "kopie" / f"{kind}.html").read_text(encoding="utf-8")
            wrong += [f"type {kind}: {text}" for text in judge(kind, seen, copy)]
    print("\n".join(wrong) or f"{len(TYPES)} saved reports open as they should")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
