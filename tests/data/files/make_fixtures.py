#!/usr/bin/env python3
"""Writes the hand-made fixtures of the configuration file tests.

Every file is spelled out line by line from the documented line tables, with
explicit CR LF line ends and Windows-1252 bytes. The values are the ones the
tests in tests/files/ put into the records. Run from this folder:
    python3 make_fixtures.py
"""
import os

HERE = os.path.dirname(os.path.abspath(__file__))


def num(n):
    """A number printed on its own line: blank or minus, digits, one blank."""
    return (" %d " % n) if n >= 0 else ("%d " % n)


def save(name, lines):
    data = "".join(l + "\r\n" for l in lines).encode("cp1252")
    with open(os.path.join(HERE, name), "wb") as f:
        f.write(data)


# ---------------------------------------------------------------- main file

def main_file(c, old_no_totem_lines=False, old_no_osc=False, old_no_midi_count=False,
              old_no_direction=False, old_no_totem_block=False, stop_after=None):
    L = []
    L += [";-----------------------------", "; QEL Main Configuration File", ";-----------------------------", "", ""]
    L += ["; Title:", c["name"], ""]
    L += ["; Number of Exoskeletons:", num(c["nexos"]), ""]
    L += ["; Number of Totems:", num(c["ntotems"])]
    if not old_no_totem_lines:
        for i in range(c["ntotems"]):
            L += ["A%d" % c["axes"][i], "B%d" % c["buttons"][i]]
    L += [""]
    if not old_no_osc:
        L += ["; Number of OSC connections:", num(c["noscs"]), ""]
        for i in range(c["noscs"]):
            label, ip, port, inout = c["osc"][i]
            L += [label, ip, num(port), num(inout)]
        L += [""]
        L += ["; Number of Arduinos:", num(c["nard"]), ""]
    L += ["; Number of QEL Display Manager:", num(c["nqdm"]), ""]
    if not old_no_midi_count:
        L += ["; Number of MIDI devices:", num(c["nmidi"]), ""]
    L += ["; Number of Flash apps:", num(c["nflash"]), ""]
    L += ["; Number of video capture devices:", num(c["ncaps"]), ""]
    if c["nexos"] > 0:
        L += ["; Exoskeleton 1 COM Port:", num(c["exo1"]), ""]
    if c["nexos"] > 1:
        L += ["; Exoskeleton 2 COM Port:", num(c["exo2"]), ""]
    L += ["; TalporMorax COM Port:", num(c["talpor"]), ""]
    L += ["; Audio MIDI Ports:"]
    for (port, inout, label) in c["midi"]:
        if old_no_direction or old_no_midi_count:
            L += [num(port), label]
        elif port < 0:
            L += ["-1", "0", "---"]
        else:
            L += [num(port), num(inout), label if label else "---"]
    L += [""]
    L += ["; Flash Port:", num(c["flashport"]), ""]
    L += ["; QEL Display Manager Port:", num(c["qdmport"]), ""]
    if c["ntotems"] > 0 and not old_no_totem_block:
        L += ["; Totem Devices:", "TD_BEGIN"]
        L += [num(c["totemdev"][i]) for i in range(c["ntotems"])]
        L += ["TD_END", ""]
    L += ["; Scenes & Subscenes File:", "Scenes.cfg", ""]
    L += ["; Movies Filenames:", "Scenes.txt", ""]
    L += ["; Loads Configuration:", "Movies.cfg", ""]
    L += ["; Events File:", "Events.cfg", ""]
    L += ["; Talpor Events File:", "Talpor.cfg", ""]
    L += ["; Exoskeletons Calibration Files:"]
    L += ["Exo%d.cfg" % (i + 1) for i in range(c["nexos"])]
    L += [""]
    if c["nard"] > 0:
        L += ["; Arduinos Configuration Files:"]
        L += ["Arduino%d.cfg" % (i + 1) for i in range(c["nard"])]
        L += [""]
    L += ["; Movies Width:", num(c["width"]), ""]
    L += ["; Movies Height:", num(c["height"]), ""]
    L += ["; Control Machine IP Address:", c["ip"], ""]
    if stop_after == "ip":
        return L
    L += ["; Number of Digital IO Cards:", num(c["ndio"]), ""]
    for i in range(c["ndio"]):
        cid, nin, nout = c["dio"][i]
        L += ["; Digital IO Card %d: " % (i + 1), num(cid), num(nin), num(nout), ""]
    L += ["; Background Color:", num(c["bk"]), ""]
    if stop_after == "bk":
        return L
    L += ["; Flash Player Folder:"]
    L += [c["flashfolder"][i] for i in range(c["nflash"])]
    L += [""]
    L += ["; QDM Remote Paths:"]
    L += [c["qdmpath"][i] for i in range(c["nqdm"])]
    L += [""]
    L += ["; QDM Number of video apps:"]
    L += [num(c["apps"][i]) for i in range(c["nqdm"])]
    L += [""]
    for title, key in (("; QDM Video app labels:", "applabel"), ("; QDM Video app window names:", "appwin"),
                       ("; QDM Video app paths:", "apppath")):
        L += [title]
        for i in range(c["nqdm"]):
            L += [c[key](i, j) for j in range(c["apps"][i])]
        L += [""]
    L += ["; QDM Video app launch on startup:"]
    for i in range(c["nqdm"]):
        L += [num(1 if c["launch"](i, j) else 0) for j in range(c["apps"][i])]
    L += [""]
    if stop_after == "launch":
        return L
    L += ["; Value Events per Second:", num(c["eps"]), "", "", ""]
    return L


def new_performance():
    return dict(name="QEL New", nexos=0, ntotems=0, axes=[2] * 4, buttons=[5] * 4, noscs=0, osc=[], nard=0,
                nqdm=0, nmidi=0, nflash=0, ncaps=0, exo1=1, exo2=1, talpor=0, midi=[], flashport=1122,
                qdmport=1111, totemdev=[1, 2, 3, 4], width=800, height=600, ip="192.168.1.10", ndio=1,
                dio=[(0, 32, 32)], bk=0, flashfolder=[], qdmpath=[], apps=[], applabel=None, appwin=None,
                apppath=None, launch=None, eps=16)


def full_performance():
    midi = []
    for i in range(8):
        if i == 0:
            midi.append((-1, 1, "ignored"))
        elif i == 1:
            midi.append((3, 1, ""))
        else:
            midi.append((i, (i % 2) + 1, "MIDI é€ %d" % i))
    return dict(name="Gala é € Noche", nexos=2, ntotems=4, axes=[2, 3, 4, 5], buttons=[10, 11, 12, 13],
                noscs=16, osc=[("OSC %d, é" % (i + 1), "10.0.0.%d" % (i + 1), 8000 + i, i % 3) for i in range(16)],
                nard=16, nqdm=8, nmidi=8, nflash=16, ncaps=4, exo1=3, exo2=4, talpor=7, midi=midi,
                flashport=1122, qdmport=1111, totemdev=[4, 3, 2, 1], width=1024, height=768, ip="10.0.0.1",
                ndio=4, dio=[(10 + i, 16, 8 + i) for i in range(4)], bk=16777215,
                flashfolder=["\\\\flash%d\\folder\\" % (i + 1) for i in range(16)],
                qdmpath=["\\\\QDM%d\\path\\" % (i + 1) for i in range(8)], apps=[8] * 8,
                applabel=lambda i, j: "Label %d-%d" % (i, j), appwin=lambda i, j: "Win %d-%d" % (i, j),
                apppath=lambda i, j: "c:\\apps\\%d\\%d.exe" % (i, j), launch=lambda i, j: (i + j) % 2 == 0,
                eps=25)


def older_base():
    """A small performance for the older forms: 2 joysticks, 2 OSC, 1 Arduino, 2 MIDI devices."""
    c = new_performance()
    c.update(name="Old Show", nexos=1, exo1=5, ntotems=2, axes=[3, 4, 2, 2], buttons=[6, 7, 5, 5],
             totemdev=[2, 1, 3, 4], noscs=2, osc=[("Osc A", "1.2.3.4", 9000, 1), ("Osc B", "5.6.7.8", 9001, 2)],
             nard=1, nqdm=1, nmidi=2, midi=[(3, 1, "Synth"), (5, 2, "Drums")], nflash=1, ncaps=1,
             flashfolder=["\\\\flash1\\f\\"], qdmpath=["\\\\qdm1\\p\\"], apps=[2],
             applabel=lambda i, j: "L%d" % j, appwin=lambda i, j: "W%d" % j, apppath=lambda i, j: "P%d" % j,
             launch=lambda i, j: j == 1, eps=30, bk=255, talpor=2)
    return c


# -------------------------------------------------------------- scenes file

def scenes_file(title, nflash, scenes, colours=True):
    L = [";---------------------------------------", "; QEL Scenes & Parts Configuration File",
         ";---------------------------------------", "", "", "; Title:", title, "", "; Number of Scenes:",
         num(len(scenes)), "", ""]
    for i, sc in enumerate(scenes):
        L += ["; Scene %d:" % i, ";-------------------", ""]
        L += ["; ID:", num(sc["id"]), ""]
        L += ["; Name:", sc["name"], ""]
        if colours:
            L += ["; Color:", num(sc["color"]), ""]
        L += ["; Remarks:", sc["remarks"], ""]
        L += ["; SWF Path:"] + sc["movies"][:nflash] + [""]
        L += ["; Number of Parts:", num(len(sc["parts"])), ""]
        for k, (pid, pname, premarks) in enumerate(sc["parts"]):
            L += [";      Part %d:" % k, ";      --------", ""]
            L += [";      ID:", "       %d" % pid, ""]
            L += [";      Name:", "       " + pname, ""]
            L += [";      Remarks:", "       " + premarks, ""]
        L += [""]
    L += ["", ""]
    return L


def scene_names_file(scenes):
    L = [num(len(scenes)), ""]
    L += ["%d - %s" % (i, sc["name"]) for i, sc in enumerate(scenes)]
    L += ["", ""]
    return L


SCENES = [
    dict(id=0, name="INTRO", color=9, remarks="Opening é €", movies=["c:\\m\\intro1.swf", "c:\\m\\intro2.swf"],
         parts=[(0, "", "")]),
    dict(id=1, name="DANCE, PART ONE", color=0, remarks="", movies=["", "x.swf"],
         parts=[(0, "Part A", "first"), (1, "B", "second, with comma"), (2, "", "r")]),
    dict(id=2, name="FINALE", color=14, remarks="The end", movies=["a", "b"],
         parts=[(0, "End 1", "x"), (1, "End 2", "y")]),
]

# ------------------------------------------------------------ exoskeleton

EXO_ROWS = [("CI", "RANGO", "0"), ("CD", "RANGO", "1"), ("HI", "RANGO", "2"), ("HD", "RANGO", "3"),
            ("RI", "RANGO", "4"), ("RD", "RANGO", "5"), ("II", "RANGO", "6"), ("ID", "RANGO", "7"),
            ("FCI", "ONOFF", "8"), ("FCD", "ONOFF", "9")] + \
           [("P%d" % n, "ONOFF", str(9 + n)) for n in range(1, 7)] + \
           [("DI1", "ONOFF", "16"), ("DI2", "ONOFF", "17"), ("DD1", "ONOFF", "18"), ("DD2", "ONOFF", "19"),
            ("IMI", "ONOFF", "20"), ("IMD", "ONOFF", "21"), ("IPI", "ONOFF", "22"), ("IPD", "ONOFF", "23"),
            ("IC", "ONOFF", "24"), ("C1yC2", "DOBLE", "25y26"), ("C3yC4", "DOBLE", "27y28"),
            ("C5yC6", "DOBLE", "29y30"), ("SEL", "SELEC", "31")]


def exo_file(exo_id, rows):
    L = ["; Exoskeleton ID.", num(exo_id), "", "Sensor,Canal,Tipo,Item,Min,Max", "-" * 44]
    line = lambda r: ",".join(str(x) for x in rows[r])
    L += [line(r) for r in range(0, 8)] + [""]
    L += [line(r) for r in range(8, 25)] + [""]
    L += [line(r) for r in range(25, 28)] + [""]
    L += [line(28), "", ""]
    return L


def new_suit_rows():
    return [(lab, r + 1, typ, item, 0, 255) for r, (lab, typ, item) in enumerate(EXO_ROWS)]


# ---------------------------------------------------------------- arduino

def arduino_file(label, com, analog, digital):
    words = {0: "PWM", 1: "INPUT", 2: "OUTPUT"}
    L = ["; Arduino Label.", label, "", "; COM Port, #Analog Inputs, #Digital IOs.",
         "%d,%d,%d" % (com, len(analog), len(digital)), "", "Analog Inputs: Index,Min,Max", "-" * 44]
    L += ["%d,%d,%d" % (i, mn, mx) for i, (mn, mx) in enumerate(analog)]
    L += ["", "Digital IOs: Index,DigType(IN, OUT or PWM)", "-" * 44]
    L += ["%d,%s" % (i, words[t]) for i, t in enumerate(digital)]
    L += ["", ""]
    return L


ARD_ANALOG = [(0, 1023), (12, 900)]
ARD_DIGITAL = [1, 2, 0, 1, 1, 2, 2, 0, 1, 2]

# ------------------------------------------------------------ video capture

RULE53 = ";" + "-" * 53


def capture_file(scenes, ncaps):
    """scenes: list of (name, [ (flag, [ (fps, q, root, nf, mt) per device ]) per part ])."""
    L = [RULE53, "; QEL Video Capture Configuration File", RULE53, "", "", ""]
    for s, (name, parts) in enumerate(scenes):
        L += ["; Scene %d - %s." % (s, name), RULE53, "", ""]
        for p, (flag, caps) in enumerate(parts):
            L += ["; Scene %d - Part %d. " % (s, p), ""]
            for d in range(ncaps):
                fps, q, root, nf, mt = caps[d]
                L += ["%d,%d,%d,%d,%d,%s,%d,%d" % (s, p, flag, fps, q, root.strip(" "), nf, mt)]
            L += [""]
        L += ["", "", ""]
    L += ["", ".", "", ""]
    return L


CAPTURE_SCENES = [
    ("INTRO", [(0, [(5, 50, "C:\\", 8, 3), (10, 75, "D:\\cap\\", 4, 6)])]),
    ("DANCE é €", [(0, [(25, 90, "E:\\a", 2, 9), (1, 1, "F:\\b", 1, 1)]),
                   (1, [(30, 100, "G:\\shots", 16, 60), (5, 50, "C:\\", 8, 3)])]),
]


def video_events_file():
    r = ";-------------------------------------"
    return [r, "; QEL Video Events Configuration File.", r, "", "", "", ".", "", ""]


# ------------------------------------------------------------------ robots

def bots_files(talpor_port, scenes):
    """scenes: list of (name, [ [ (robot, remarks) per rule ] per part ])."""
    idx = [RULE53, "; QEL RukaBot Events Configuration File", RULE53, "", "", ""]
    tal = [num(talpor_port), ""]
    vil = []
    for s, (name, parts) in enumerate(scenes):
        idx += ["; Scene %d - %s." % (s, name), RULE53, "", ""]
        for p, rules in enumerate(parts):
            idx += ["; Scene %d - Part %d. " % (s, p), ""]
            for e, (robot, remarks) in enumerate(rules):
                if robot == 5:
                    tal += ["%d,%d" % (s, p)]
                    continue
                idx += ["%2d,%2d,%2d,,%s" % (e, s, p, remarks)]
                if robot == 3:
                    vil += ["%d,%d" % (s, p)]
            idx += [""]
        idx += ["", "", ""]
    idx += ["", ".", "", ""]
    tal += ["", ".", "", ""]
    vil += [""]
    return idx, tal, vil


BOT_SCENES_EMPTY = [("INTRO", [[]]), ("DANCE", [[], []])]
BOT_SCENES = [
    ("INTRO", [[(5, "talpor one"), (1, "arm, left é €"), (3, "vilna")]]),
    ("DANCE", [[], [(3, "v2"), (3, "v2"), (5, "t2"), (0, "")]]),
]


def main():
    save("main_new.qel", main_file(new_performance()))
    save("main_max.qel", main_file(full_performance()))
    ob = older_base()
    save("main_current_small.qel", main_file(ob))
    save("main_old_no_totem_lines.qel", main_file(ob, old_no_totem_lines=True))
    # A file without the OSC section has no Arduino count either, so it names no Arduino files.
    ob_no_osc = dict(ob, nard=0, noscs=0)
    save("main_old_no_osc.qel", main_file(ob_no_osc, old_no_osc=True))
    save("main_old_no_midi_count.qel", main_file(ob, old_no_midi_count=True))
    save("main_old_no_direction.qel", main_file(ob, old_no_direction=True))
    save("main_old_no_totem_block.qel", main_file(ob, old_no_totem_block=True))
    save("main_old_ends_after_ip.qel", main_file(ob, stop_after="ip"))
    save("main_old_ends_after_bkcolor.qel", main_file(ob, stop_after="bk"))
    save("main_old_no_events_per_sec.qel", main_file(ob, stop_after="launch"))
    save("main_oldest.qel", main_file(ob_no_osc, old_no_totem_lines=True, old_no_osc=True, old_no_midi_count=True,
                                      old_no_totem_block=True, stop_after="ip"))

    save("scenes_three.cfg", scenes_file("Gala é € Noche", 2, SCENES))
    save("scenes_three_no_colours.cfg", scenes_file("Gala é € Noche", 2, SCENES, colours=False))
    save("scenes_three.txt", scene_names_file(SCENES))

    save("exo_new_suit.cfg", exo_file(1, new_suit_rows()))

    save("arduino_2_10.cfg", arduino_file("Stage Left, é €", 5, ARD_ANALOG, ARD_DIGITAL))

    save("videocapture_two_scenes.cfg", capture_file(CAPTURE_SCENES, 2))
    save("videoevents.cfg", video_events_file())

    idx, tal, vil = bots_files(7, BOT_SCENES_EMPTY)
    save("bots_none_index.cfg", idx)
    save("bots_none_talpor.cfg", tal)
    save("bots_none_vilna.cfg", vil)
    idx, tal, vil = bots_files(7, BOT_SCENES)
    save("bots_rules_index.cfg", idx)
    save("bots_rules_talpor.cfg", tal)
    save("bots_rules_vilna.cfg", vil)


if __name__ == "__main__":
    main()
