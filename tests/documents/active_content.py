# SPDX-License-Identifier: MIT
"""Saves a report whose texts hold every kind of active content and opens the copy in a real browser.

Use: active_content.py --program MERO_BATCH --root PROJECT

A server on this machine counts what the browser asks for. The copy must ask for nothing and show every text as it was
typed, also without its security policy: that is only the second wall. A page with the bare markup, the control, shows
that the server would notice. Skipped if there is no browser.
"""

import argparse
import html
import http.server
import re
import shutil
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

SKIPPED = 77
TIME_LIMIT_S = 60
# AT stands for the server's address; each kind asks for a path of its own.
KINDS = {
    "script": "<script src=AT></script>",
    "inline-script": "<script>new Image().src='AT'</script>",
    "module": "<script type=module>import 'AT'</script>",
    "handler": "<img src=x onerror=\"new Image().src='AT'\">",
    "body-handler": "<body onload=\"new Image().src='AT'\">",
    "details": "<details open ontoggle=\"new Image().src='AT'\">a</details>",
    "focus": "<input autofocus onfocus=\"new Image().src='AT'\">",
    "iframe": "<iframe src=AT></iframe>",
    "srcdoc": "<iframe srcdoc=\"<img src=AT>\"></iframe>",
    "object": "<object data=AT></object>",
    "embed": "<embed src=AT>",
    "applet": "<applet code=AT></applet>",
    "frameset": "<frameset><frame src=AT></frameset>",
    "image": "<img src=AT>",
    "spaced-image": "<img/src=AT>",
    "odd-image": "<img\tsrc\t=\tAT\t>",
    "srcset": "<img srcset='AT 1x'>",
    "picture": "<picture><source srcset='AT'><img></picture>",
    "lowsrc": "<img lowsrc=AT dynsrc=AT longdesc=AT>",
    "input-image": "<input type=image src=AT>",
    "background": "<table background=AT><tr><td background=AT>a</td></tr></table>",
    "svg": "<svg onload=\"new Image().src='AT'\"><image href=AT /></svg>",
    "svg-use": "<svg><use href='AT#a'/><script href=AT></script></svg>",
    "math": "<math><mglyph src=AT></mglyph><maction actiontype=statusline xlink:href=AT>a</maction></math>",
    "style": "<style>body { background: url(AT) }</style>",
    "import": "<style>@import 'AT';</style>",
    "font-face": "<style>@font-face { font-family: q; src: url(AT) } b { font-family: q }</style><b>a</b>",
    "style-attribute": "<b style='background-image: url(AT)'>a</b>",
    "quoted-style": "<div style=\"border-image: url('AT')\">a</div>",
    "stylesheet": "<link rel=stylesheet href=AT>",
    "prefetch": "<link rel=prefetch href=AT><link rel=dns-prefetch href=AT><link rel=preconnect href=AT>",
    "preload": "<link rel=preload as=image href=AT><link rel=icon href=AT>",
    "manifest": "<link rel=manifest href=AT>",
    "form": "<form action=AT id=q><button formaction=AT>a</button></form><script>q.submit()</script>",
    "audio": "<audio src=AT autoplay></audio>",
    "video": "<video src=AT poster=AT autoplay></video><track src=AT>",
    "link": "<a href=AT ping=AT>a</a>",
    "javascript-link": "<a href=\"javascript:fetch('AT')\" id=j>a</a><script>j.click()</script>",
    "data-link": "<iframe src=\"data:text/html,<img src=AT>\"></iframe>",
    "base": "<base href=AT target=_top>",
    "entities": "<img src=x one&#114;ror=\"new Image().src='AT'\">",
    "broken": "<b <img src=AT><<img src=AT>",
    "cdata": "<![CDATA[<img src=AT>]]><?xml-stylesheet href='AT'?>",
    "template": "<template shadowrootmode=open><img src=AT></template>",
    "portal": "<portal src=AT></portal><fencedframe src=AT></fencedframe>",
    "comment": "<!--><img src=AT>-->",
    "refresh": "<meta http-equiv=refresh content='0;url=AT'>",
    "late-refresh": "<META HTTP-EQUIV=\"Refresh\" CONTENT=\"1; URL=AT\">",
    "policy": "<meta http-equiv=Content-Security-Policy content='report-uri AT'>",
    "title": "</title><textarea><img src=AT></textarea><plaintext>",
}
# Kinds that every browser asks for when they stand in a page as they are; the others wait, or need one another.
NOTICED = {"script", "inline-script", "handler", "iframe", "object", "embed", "image", "srcset", "style", "stylesheet"}


class Server(http.server.ThreadingHTTPServer):
    """Answers every request with an empty page and keeps the paths."""

    def __init__(self) -> None:
        self.asked: set[str] = set()
        super().__init__(("127.0.0.1", 0), Handler)

    def address(self, kind: str) -> str:
        return f"http://127.0.0.1:{self.server_address[1]}/{kind}"


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self) -> None:  # the name that the library calls
        self.server.asked.add(self.path.lstrip("/"))
        self.send_response(204)
        self.end_headers()

    do_POST = do_HEAD = do_GET

    def log_message(self, *_) -> None:
        pass


def markup(server: Server, kind: str) -> str:
    return KINDS[kind].replace("AT", server.address(kind))


def scripted(text: str) -> str:
    """A text as scripts write it."""
    return text.replace("\\", "\\\\").replace('"', '\\"')


def save_copy(program: Path, root: Path, scratch: Path, server: Server) -> Path:
    """The copy of a report with all kinds in the description and some in each other text."""
    folder = scratch / "program"
    folder.mkdir()
    shutil.copy(root / "data" / "mero.mdb", folder)
    shutil.copytree(root / "Webs", folder / "Webs")
    everything = " ".join(markup(server, kind) for kind in KINDS)
    lines = [f'set txtDetails "{scripted(everything)}"']
    for field in ("txtProjektant", "txtMistoAkce", "txtInvestor", "txtTypPudyPodlozi"):
        some = " ".join(markup(server, kind) for kind in ("refresh", "handler", "style-attribute", "image"))
        lines.append(f'set {field} "{scripted(some)}"')
    # A name of a file holds no slash.
    lines.append('set txtProjName "Dům <img src=x onerror=document.title=1><svg onload=document.title=1>"')
    copy = scratch / "copy.html"
    lines += ["click cmdEdit(0)", 'select frmIntDialog.cboSelStanice "Brno"', 'select frmIntDialog.cboSelPeriod "0.2"',
              "cell frmIntDialog.fgIntDeste 3 2", "click frmIntDialog.cmdOK", "click cmdEdit(1)",
              "cell frmDialog.fgSoucPovrchOdtok 8 3", 'set frmDialog.txtPlocha "800"', "click frmDialog.cmdZapsat",
              "click frmDialog.OKButton", 'set txtSoucFiltrace "1e-4"',
              "tab 1", "click optSelType(0)", "focus cboSelType", "select cboSelType 1", "tab 3",
              f'answer-save "{copy}"', "click cmdSaveResults"]
    done = subprocess.run([program, "run", "--folder", folder, "-"], input="\n".join(lines) + "\n", text=True,
                          capture_output=True, timeout=TIME_LIMIT_S, check=False)
    if not copy.exists():
        sys.exit(f"not saved: {done.stdout} {done.stderr}")
    shutil.rmtree(folder)
    return copy


def open_page(browser: str, scratch: Path, page: Path) -> str:
    """The page's elements after its scripts had time to run."""
    done = subprocess.run(
        [browser, "--headless", "--no-sandbox", "--disable-gpu", "--disable-extensions", "--no-first-run",
         f"--user-data-dir={scratch / 'profile'}", "--virtual-time-budget=4000", "--dump-dom", page.as_uri()],
        text=True, capture_output=True, timeout=TIME_LIMIT_S, check=False)
    return done.stdout


def judge(name: str, dom: str, server: Server) -> list[str]:
    """What is wrong with an opened copy."""
    wrong = [f"{name}: asks for {', '.join(sorted(server.asked))}"] if server.asked else []
    text = html.unescape(re.sub(r"<[^>]*>", "", dom))
    for kind in KINDS:
        # Harmless tags within are markup; what asks for something is shown.
        for piece in re.findall(r"<[^<>]*AT[^<>]*>", KINDS[kind]):
            shown = re.sub(r"\s+", " ", html.unescape(piece.replace("AT", server.address(kind))))
            harmless = re.match(r"<(b|div|table|td)\b", piece)
            if not harmless and shown not in re.sub(r"\s+", " ", text):
                wrong.append(f"{name}: {kind}: no text {shown}")
    tags = {tag.lower() for tag in re.findall(r"<([a-zA-Z][^\s/>]*)", dom)}
    known = {"align=justify", "html", "head", "meta", "body", "div", "table", "tbody", "tr", "td", "th", "img", "b", "u", "p", "hr",
             "br", "sup", "font"}
    wrong += [f"{name}: holds {tag}" for tag in sorted(tags - known)]
    if "<title" in dom or re.search(r"<[^>]*\son\w+=", dom) or "url(" in "".join(re.findall(r"<[^>]*>", dom)):
        wrong.append(f"{name}: holds something active")
    return wrong


def check(browser: str, program: Path, root: Path, scratch: Path) -> list[str]:
    server = Server()
    threading.Thread(target=server.serve_forever, daemon=True).start()
    copy = save_copy(program, root, scratch, server)
    wrong = judge("the copy", open_page(browser, scratch, copy), server)
    page = copy.read_text(encoding="utf-8")
    bare = re.sub(r'<meta http-equiv="Content-Security-Policy"[^>]*>', "", page)
    if bare == page:
        wrong.append("the copy has no security policy")
    unprotected = scratch / "unprotected.html"
    unprotected.write_text(bare, encoding="utf-8")
    wrong += judge("the copy without its policy", open_page(browser, scratch, unprotected), server)
    server.asked.clear()
    control = scratch / "control.html"
    control.write_text("<html><body>" + "".join(markup(server, kind) for kind in sorted(NOTICED)), encoding="utf-8")
    # A busy machine may end the page's virtual time before it has asked for everything.
    for _ in range(3):
        if server.asked != NOTICED:
            open_page(browser, scratch, control)
    if server.asked != NOTICED:
        wrong.append(f"the control is not asked for: {sorted(NOTICED - server.asked)}")
    server.shutdown()
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
    with tempfile.TemporaryDirectory(prefix="mero-active-") as name:
        wrong = check(browser, arguments.program.resolve(), arguments.root, Path(name).resolve())
    print("\n".join(wrong) or f"{len(KINDS)} kinds of active content are text in the copy")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
