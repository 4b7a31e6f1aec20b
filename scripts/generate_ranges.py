#!/usr/bin/env python3
"""Writes the preflop range documents that the range library ships with.

  qml/data/standard_ranges.json  Standard presets: six-max and heads-up, five rake levels, both seats.
  qml/data/exploit_ranges.json   Population tree: ranges of typical opponent types.

No range is typed in hand by hand. Each one comes from a few hand orderings and numbers per spot
(how much of the deck opens, 3-bets, calls), so that the whole set stays consistent when one number
changes. Only the UTG open without rake is fixed; everything else is built around it.

How a range is drawn from an ordering: hands are taken best first until the wanted number of combos,
and the last hands before the cut fade out linearly over a band, rounded to the weight step (0.2 for
the Standard presets, 0.25 for the Population tree). That band is where real strategies mix.

Usage: python3 scripts/generate_ranges.py [--generated-at 2024-01-01T00:00:00.000Z]
"""

import argparse
import datetime
import json
import pathlib

RANKS = "AKQJT98765432"
POSITIONS = ("UTG", "HJ", "CO", "BTN", "SB")
OPENERS = ("UTG", "HJ", "CO", "BTN")
# An earlier and a later position: the opener and the player behind who 3-bets or calls in position.
POSITION_PAIRS = (("UTG", "HJ"), ("UTG", "CO"), ("UTG", "BTN"), ("HJ", "CO"), ("HJ", "BTN"), ("CO", "BTN"),
                  ("SB", "BB"))
DECK_COMBOS = 1326


def _hand_classes():
    pairs = [rank + rank for rank in RANKS]
    suited = [RANKS[i] + RANKS[j] + "s" for i in range(13) for j in range(i + 1, 13)]
    return pairs + suited + [hand[:2] + "o" for hand in suited]


HANDS = _hand_classes()
COMBOS = {hand: 6 if len(hand) == 2 else 4 if hand.endswith("s") else 12 for hand in HANDS}
FULL = {hand: 1.0 for hand in HANDS}


def _ordering(text, complete=True):
    order = text.split()
    if len(set(order)) != len(order) or not set(order) <= set(HANDS):
        raise ValueError("hand ordering repeats or misspells a hand")
    if complete and len(order) != len(HANDS):
        raise ValueError("hand ordering misses hands: " + " ".join(sorted(set(HANDS) - set(order))))
    return order


# Opening value at 100bb six-max: raw strength first, then how well the hand plays after the flop
# (suited aces and suited connectors above offsuit hands of similar strength).
OPEN_ORDER = _ordering("""
    AA KK QQ AKs JJ AKo AQs TT AJs KQs  AQo 99 ATs KJs 88 KTs QJs AJo KQo A5s
    QTs JTs 77 A9s A4s ATo K9s 66 T9s A8s  A3s KJo J9s 55 A7s Q9s A6s A2s 98s QJo
    K8s KTo T8s 44 87s 33 K7s 22 76s QTo  JTo K6s 97s 65s A9o Q8s J8s K5s 86s 54s
    T7s K4s A8o 75s K9o K3s Q7s 64s K2s Q6s  J7s 96s Q9o A7o T9o Q5s 53s J9o A5o 85s
    Q4s A6o K8o 43s T8o Q3s 74s J6s A4o 98o  Q2s 63s T6s 95s A3o J5s K7o J8o 87o A2o
    52s J4s 84s Q8o 97o K6o 76o T7o J3s 42s  73s 65o J2s T5s K5o 86o 94s Q7o 54o T4s
    62s K4o 93s T3s J7o 32s 75o K3o Q6o 83s  64o 96o T2s 92s K2o 53o Q5o 82s 85o J6o
    72s T6o Q4o 43o 74o Q3o J5o 95o 63o Q2o  J4o 84o T5o 52o J3o 42o T4o 73o J2o 94o
    T3o 62o 93o T2o 32o 83o 92o 82o 72o
""")

# Strength against strong ranges, for value raises: pairs and big cards first, playability later.
_VALUE_HEAD = _ordering("""
    AA KK QQ AKs JJ AKo TT AQs AQo AJs KQs 99 ATs AJo KJs KQo 88 KTs ATo QJs 77 A9s KJo QTs JTs 66 A8s
""", complete=False)
VALUE_ORDER = _VALUE_HEAD + [hand for hand in OPEN_ORDER if hand not in _VALUE_HEAD]

# Raise bluffs: suited wheel aces first (they block aces and make nut straights and flushes), then
# suited kings for their blockers and suited connectors for playability, then weaker suited hands.
BLUFF_ORDER = _ordering("""
    A5s A4s A3s A2s K9s 76s 65s 87s 54s 98s K8s T9s K7s K6s K5s 97s 86s Q9s J9s T8s 75s 64s K4s
    A9s A8s A7s A6s Q8s J8s 53s K3s K2s Q7s Q6s 96s 85s 43s J7s T7s Q5s Q4s Q3s Q2s J6s T6s 74s 63s
    J5s J4s 52s 42s A5o A4o KJo QJo KTo A9o A3o A8o K9o QTo JTo A2o A7o T9o
""", complete=False)
# Against the tightest opener only blocker bluffs: hands holding an ace or a king.
BLOCKER_BLUFFS = [hand for hand in BLUFF_ORDER if hand[0] in "AK"]

# Flat calls: premium hands that were not raised never fold; below them the open ordering with
# offsuit hands pushed down, as they are dominated more often.
PREMIUM_COUNT = 12
OFFSUIT_FLAT_PENALTY = 12
CALL_ORDER = _VALUE_HEAD[:PREMIUM_COUNT] + sorted(
    (hand for hand in HANDS if hand not in _VALUE_HEAD[:PREMIUM_COUNT]),
    key=lambda hand: OPEN_ORDER.index(hand) + (OFFSUIT_FLAT_PENALTY if hand.endswith("o") else 0))

STANDARD_STEP = 0.2
FADE_SHARE = 0.12      # fade band as a share of the combos taken ...
FADE_MIN = 8.0         # ... and at least this many combos wide
BLUFF_CAP = 0.6        # a Standard bluff hand raises at most this often and calls the rest
TRAP_SHARE = 0.2       # share of aces and kings that just call a 4-bet instead of jamming
FIT_TOLERANCE = 0.05   # a drawn range may miss its combo target by this share (or 4 combos)

# ---------------------------------------------------------------------------------------------------
# Standard presets

# The UTG open without rake, the fixed point of the whole set.
ANCHOR_UTG = (
    "AA, KK, QQ, JJ, TT, 99:0.8, 88:0.8, 77, 66, 55, 44:0.6, 33:0.4, 22:0.4, AKs, AQs, AJs:0.8, "
    "ATs:0.8, A9s:0.8, A8s:0.8, A7s:0.8, A6s:0.8, A5s:0.8, A4s:0.8, A3s:0.8, A2s:0.4, KQs:0.8, "
    "KJs:0.8, KTs, K9s:0.6, K8s:0.2, K7s:0.4, K6s:0.4, QJs:0.8, QTs:0.8, Q9s:0.2, JTs:0.8, J9s:0.8, "
    "T9s:0.8, T8s:0.4, 98s:0.2, 87s:0.2, 76s:0.2, AKo, AQo, AJo:0.8, ATo:0.8, KQo:0.8, KJo:0.4, "
    "KTo:0.2, QJo:0.2")

# Rake levels in document order, with how hard each one bites (share of the harshest). Micro stakes
# pay the most rake per big blind, so 50nl is the harshest and 500nl the mildest.
RAKES = (("No rake", 0.0), ("50nl rake", 1.0), ("100nl rake", 0.75), ("200nl rake", 0.5), ("500nl rake", 0.3))

# Opens in percent of the deck without rake (UTG is the anchor), and how much the harshest rake cuts
# them: late positions steal small pots, which rake hurts most.
OPEN_PCT = {"HJ": 19.5, "CO": 26.5, "BTN": 44.0, "SB": 41.0}
HEADS_UP_OPEN_PCT = 82.0
OPEN_RAKE_CUT = {"UTG": 0.06, "HJ": 0.07, "CO": 0.08, "BTN": 0.10, "SB": 0.15}
HEADS_UP_OPEN_RAKE_CUT = 0.06

# Facing an open: (3-bet % of the deck, value share of the 3-bets, flat % of the deck) without rake.
FACING_OPEN = {
    ("UTG", "SB"): (4.4, 0.68, 1.6), ("UTG", "BB"): (5.0, 0.65, 22.0),
    ("HJ", "SB"): (5.8, 0.62, 1.8), ("HJ", "BB"): (6.6, 0.62, 26.0),
    ("CO", "SB"): (8.0, 0.56, 2.2), ("CO", "BB"): (8.8, 0.56, 32.0),
    ("BTN", "SB"): (12.0, 0.50, 2.6), ("BTN", "BB"): (12.5, 0.50, 40.0),
    ("UTG", "HJ"): (4.2, 0.70, 3.0), ("UTG", "CO"): (4.6, 0.68, 3.8), ("UTG", "BTN"): (5.0, 0.65, 6.0),
    ("HJ", "CO"): (5.6, 0.65, 4.4), ("HJ", "BTN"): (6.4, 0.62, 7.5),
    ("CO", "BTN"): (8.6, 0.58, 9.0),
    ("SB", "BB"): (14.0, 0.55, 40.0),
}
HEADS_UP_FACING_OPEN = (16.0, 0.50, 48.0)
# Rake takes most from flats out of the blinds (the SB flat nearly disappears); squeezed out of
# flatting, the blinds 3-bet a little more.
FLAT_RAKE_CUT = {"SB": 0.60, "BB": 0.25, "HJ": 0.15, "CO": 0.15, "BTN": 0.15}
HEADS_UP_FLAT_RAKE_CUT = 0.20
THREEBET_RAKE_GAIN = {"SB": 0.20, "BB": 0.12}

# The opener facing a 3-bet: (4-bet share of the open, value share of the 4-bets, call share).
FACING_3BET = {
    ("UTG", "HJ"): (0.115, 0.70, 0.30), ("UTG", "CO"): (0.12, 0.70, 0.31), ("UTG", "BTN"): (0.13, 0.68, 0.33),
    ("HJ", "CO"): (0.12, 0.66, 0.30), ("HJ", "BTN"): (0.13, 0.64, 0.32), ("CO", "BTN"): (0.135, 0.60, 0.30),
    ("SB", "BB"): (0.11, 0.60, 0.26),
    ("UTG", "SB"): (0.12, 0.70, 0.38), ("UTG", "BB"): (0.125, 0.70, 0.36),
    ("HJ", "SB"): (0.125, 0.66, 0.38), ("HJ", "BB"): (0.13, 0.66, 0.36),
    ("CO", "SB"): (0.13, 0.62, 0.36), ("CO", "BB"): (0.135, 0.62, 0.34),
    ("BTN", "SB"): (0.135, 0.58, 0.36), ("BTN", "BB"): (0.14, 0.58, 0.34),
}
HEADS_UP_FACING_3BET = (0.10, 0.55, 0.42)
CALL_3BET_RAKE_CUT = 0.08

# The 3-bettor facing a 4-bet: share of the 3-bets that calls; in position calls more.
FACING_4BET_IN_POSITION = 0.30
FACING_4BET_OUT_OF_POSITION = 0.22
HEADS_UP_FACING_4BET = 0.32
# The hands that rake pushes from flats into 3-bets fold to a 4-bet, so a smaller share of the
# 3-bets calls one, most of all from the blinds.
CALL_4BET_RAKE_CUT = {"SB": 0.25, "BB": 0.20}
CALL_4BET_RAKE_CUT_IN_POSITION = 0.12
FOURBET_SPOTS_IP = (("HJ", "UTG"), ("CO", "UTG"), ("BTN", "UTG"), ("CO", "HJ"), ("BTN", "HJ"), ("BTN", "CO"),
                    ("BB", "SB"))

# Players around the standard: multipliers of opens, flats, 3-bets, bluff shares, 4-bets and calls.
STANDARD_STYLE = {"open": 1.0, "flat": 1.0, "threebet": 1.0, "bluff": 1.0, "fourbet": 1.0,
                  "call_3bet": 1.0, "call_4bet": 1.0}
TIGHTER_REG = {"open": 0.88, "flat": 0.8, "threebet": 0.75, "bluff": 0.7, "fourbet": 0.8,
               "call_3bet": 0.85, "call_4bet": 0.9}
LOOSER_REG = {"open": 1.15, "flat": 1.25, "threebet": 1.3, "bluff": 1.3, "fourbet": 1.25,
              "call_3bet": 1.15, "call_4bet": 1.1}

# When two rake levels would give one preset the same text, the harsher level's target moves by this
# share (at least one combo) per step until they differ. Opens and calls only shrink, as rake always
# costs them something; raises try both ways.
NUDGE_SHARE = 0.02
NUDGE_MIN_COMBOS = 1.0
MAX_NUDGES = 25
EPS = 1e-6

# ---------------------------------------------------------------------------------------------------
# Range arithmetic; a range maps hand classes to weights, absent meaning 0.


def combos(weights):
    return sum(COMBOS[hand] * weight for hand, weight in weights.items())


def snap(weight, step):
    return round(round(weight / step) * step, 4)


def union(a, b):
    both = {hand: max(a.get(hand, 0.0), b.get(hand, 0.0)) for hand in HANDS}
    return {hand: weight for hand, weight in both.items() if weight > 0}


def minus(a, b):
    left = {hand: round(weight - b.get(hand, 0.0), 4) for hand, weight in a.items()}
    return {hand: weight for hand, weight in left.items() if weight > 0}


def capped(weights, limit, step, hands=None):
    return {hand: min(weight, snap(limit * weight, step)) if hands is None or hand in hands else weight
            for hand, weight in weights.items()}


def pct(percent):
    return percent / 100.0 * DECK_COMBOS


def parse_enumerated(text):
    weights = {}
    for token in text.split(", "):
        hand, _, weight = token.partition(":")
        weights[hand] = float(weight) if weight else 1.0
    return weights


def fade(order, capacity, threshold, step):
    """Takes hands in order up to `threshold` combos of `capacity`, fading out over a band around it."""
    band = max(FADE_MIN, FADE_SHARE * threshold)
    taken, seen = {}, 0.0
    for hand in order:
        room = capacity.get(hand, 0.0)
        if room <= 0:
            continue
        size = room * COMBOS[hand]
        share = min(1.0, max(0.0, (threshold + band / 2 - seen - size / 2) / band))
        weight = snap(room * share, step)
        if weight > 0:
            taken[hand] = weight
        seen += size
    return taken


def fit(build, target, what):
    """The range of `build(threshold)` whose combos come closest to `target`."""
    if target <= 0:
        return {}
    low, high = 0.0, 2.0 * DECK_COMBOS
    for _ in range(32):
        middle = (low + high) / 2
        low, high = (middle, high) if combos(build(middle)) < target else (low, middle)
    best = min((build(low), build(high)), key=lambda weights: abs(combos(weights) - target))
    if abs(combos(best) - target) > max(4.0, FIT_TOLERANCE * target):
        raise ValueError(f"{what}: {combos(best):.1f} combos instead of {target:.1f}")
    return best


def take(order, capacity, target, step, what):
    return fit(lambda threshold: fade(order, capacity, threshold, step), target, what)


def widen(base, target, step, what):
    """`base` plus the best further hands of the open ordering, `target` combos in all."""
    return fit(lambda threshold: union(base, fade(OPEN_ORDER, FULL, threshold, step)), target, what)


def raise_or_call(capacity, value, bluff, call, bluffs, step, bluff_cap, what):
    """Splits a range into raises (value from the top, bluffs from `bluffs`) and calls (the rest)."""
    value_part = take(VALUE_ORDER, capacity, value, step, what + " value")
    rest = minus(capacity, value_part)
    bluff_part = take(bluffs, capped(rest, bluff_cap, step), bluff, step, what + " bluffs")
    rest = minus(rest, bluff_part)
    return union(value_part, bluff_part), take(CALL_ORDER, rest, call, step, what + " calls")


def call_of_4bet(threebets, target, step, what):
    """The 3-bets that call a 4-bet: strong hands below the top, with a few slow-played aces and kings."""
    return take(VALUE_ORDER, capped(threebets, TRAP_SHARE, step, {"AA", "KK"}), target, step, what)


# ---------------------------------------------------------------------------------------------------
# Standard model: every six-max and heads-up preset for one rake level and one player style.


def _shrinks_only(name):
    return name.split(" / ")[-1].startswith("RFI ") or "Call" in name


class Level:
    """One rake level for one player style, with the weight step and the nudges of its presets."""

    def __init__(self, severity, style, step, nudges):
        self.severity, self.style, self.step, self.nudges = severity, style, step, nudges

    def target(self, name, combos_wanted):
        steps = self.nudges.get(name, 0)
        if not _shrinks_only(name):
            steps = (steps + 1) // 2 if steps % 2 else -steps // 2
        return max(0.0, combos_wanted - steps * max(NUDGE_SHARE * combos_wanted, NUDGE_MIN_COMBOS))

    def rake_factor(self, position):
        return 1.0 - self.severity * OPEN_RAKE_CUT[position]

    def open_factor(self, position):
        return self.rake_factor(position) * self.style["open"]


def opens(level):
    anchor = {hand: snap(weight, level.step) for hand, weight in parse_enumerated(ANCHOR_UTG).items()}
    utg_target = level.target("RFI UTG", combos(anchor) * level.open_factor("UTG"))
    if abs(utg_target - combos(anchor)) < 1e-9:
        ranges = {"UTG": anchor}
    elif utg_target < combos(anchor):
        ranges = {"UTG": take(OPEN_ORDER, anchor, utg_target, level.step, "RFI UTG")}
    else:
        ranges = {"UTG": widen(anchor, utg_target, level.step, "RFI UTG")}
    wider_than = {"HJ": "UTG", "CO": "HJ", "BTN": "CO", "SB": "CO"}
    for position, tighter in wider_than.items():
        target = level.target("RFI " + position, pct(OPEN_PCT[position]) * level.open_factor(position))
        ranges[position] = widen(ranges[tighter], target, level.step, "RFI " + position)
    return ranges


def facing_open(level, opener, player, row, names, flat_cut, rake_factor):
    """3-bets and flats against an open; 3-bets follow the opener's width as rake trims it."""
    threebet_pct, value_share, flat_pct = row
    style = level.style
    threebets = pct(threebet_pct) * rake_factor * (1.0 + level.severity * THREEBET_RAKE_GAIN.get(player, 0.0))
    threebets = level.target(names[0], threebets * style["threebet"])
    bluff_share = min(0.9, (1.0 - value_share) * style["bluff"])
    flats = level.target(names[1], pct(flat_pct) * (1.0 - level.severity * flat_cut) * style["flat"])
    bluffs = BLOCKER_BLUFFS if opener == "UTG" else BLUFF_ORDER
    return raise_or_call(FULL, threebets * (1.0 - bluff_share), threebets * bluff_share, flats, bluffs,
                         level.step, BLUFF_CAP, names[0])


def facing_3bet(level, opened, row, names):
    fourbet_share, value_share, call_share = row
    fourbets = level.target(names[0], combos(opened) * fourbet_share * level.style["fourbet"])
    bluff_share = min(0.9, (1.0 - value_share) * level.style["bluff"])
    calls = combos(opened) * call_share * (1.0 - level.severity * CALL_3BET_RAKE_CUT)
    calls *= level.style["call_3bet"]
    return raise_or_call(opened, fourbets * (1.0 - bluff_share), fourbets * bluff_share,
                         level.target(names[1], calls), BLUFF_ORDER, level.step, BLUFF_CAP, names[0])


def facing_4bet(level, threebets, share, cut, name):
    calls = combos(threebets) * share * (1.0 - level.severity * cut) * level.style["call_4bet"]
    return call_of_4bet(threebets, level.target(name, calls), level.step, name)


def six_max(level):
    presets = {}
    rfi = opens(level)
    for position in POSITIONS:
        presets["RFI " + position] = rfi[position]
    for (opener, player), row in FACING_OPEN.items():
        names = (f"vs RFI {opener}: 3bet {player}", f"vs RFI {opener}: Call {player}")
        presets[names[0]], presets[names[1]] = facing_open(
            level, opener, player, row, names, FLAT_RAKE_CUT[player], level.rake_factor(opener))
    for (opener, player), row in FACING_3BET.items():
        names = (f"{opener} vs {player} 3bet: {opener} 4bet", f"{opener} vs {player} 3bet: {opener} Call")
        presets[names[0]], presets[names[1]] = facing_3bet(level, rfi[opener], row, names)
    spots = [(player, opener) for opener in OPENERS for player in ("SB", "BB")] + list(FOURBET_SPOTS_IP)
    for player, opener in spots:
        name = f"{player} 3bet vs {opener} 4bet: {player} Call"
        in_position = (player, opener) in FOURBET_SPOTS_IP
        share = FACING_4BET_IN_POSITION if in_position else FACING_4BET_OUT_OF_POSITION
        cut = CALL_4BET_RAKE_CUT_IN_POSITION if in_position else CALL_4BET_RAKE_CUT[player]
        presets[name] = facing_4bet(level, presets[f"vs RFI {opener}: 3bet {player}"], share, cut, name)
    return presets


def heads_up(level, six_max_sb_open):
    prefix = "Heads up / "
    factor = 1.0 - level.severity * HEADS_UP_OPEN_RAKE_CUT
    rfi = widen(six_max_sb_open, level.target(prefix + "RFI SB", pct(HEADS_UP_OPEN_PCT) * factor), level.step,
                "heads-up RFI SB")
    names = (prefix + "vs RFI SB: 3bet BB", prefix + "vs RFI SB: Call BB")
    threebets, calls = facing_open(level, "SB", "BB", HEADS_UP_FACING_OPEN, names, HEADS_UP_FLAT_RAKE_CUT,
                                   factor)
    four_names = (prefix + "SB vs BB 3bet: SB 4bet", prefix + "SB vs BB 3bet: SB Call")
    fourbets, calls_3bet = facing_3bet(level, rfi, HEADS_UP_FACING_3BET, four_names)
    calls_4bet = facing_4bet(level, threebets, HEADS_UP_FACING_4BET, CALL_4BET_RAKE_CUT["BB"],
                             prefix + "BB 3bet vs SB 4bet: BB Call")
    return {"RFI SB": rfi, "vs RFI SB: 3bet BB": threebets, "vs RFI SB: Call BB": calls,
            "SB vs BB 3bet: SB 4bet": fourbets, "SB vs BB 3bet: SB Call": calls_3bet,
            "BB 3bet vs SB 4bet: BB Call": calls_4bet}


def preset_names(player):
    """The six-max and heads-up preset names of one seat, in document order."""
    names = ["RFI " + position for position in POSITIONS]
    if player == "oop":
        names += [f"vs RFI {o}: {a} {p}" for o in OPENERS for p in ("SB", "BB") for a in ("Call", "3bet")]
        names += [f"{o} vs {p} 3bet: {o} {a}" for o, p in POSITION_PAIRS for a in ("Call", "4bet")]
        names += [f"{p} 3bet vs {o} 4bet: {p} Call" for o in OPENERS for p in ("SB", "BB")]
        return names, ["vs RFI SB: Call BB", "vs RFI SB: 3bet BB", "BB 3bet vs SB 4bet: BB Call"]
    names += [f"vs RFI {o}: {a} {p}" for o, p in POSITION_PAIRS for a in ("Call", "3bet")]
    names += [f"{o} vs {p} 3bet: {o} {a}" for o in OPENERS for p in ("SB", "BB") for a in ("Call", "4bet")]
    names += [f"{p} 3bet vs {o} 4bet: {p} Call" for p, o in FOURBET_SPOTS_IP]
    return names, ["RFI SB", "SB vs BB 3bet: SB Call", "SB vs BB 3bet: SB 4bet"]


def format_weight(weight):
    return f"{weight:.4f}".rstrip("0").rstrip(".")


def enumerated_text(weights):
    return ", ".join(hand if weights[hand] >= 1 else f"{hand}:{format_weight(weights[hand])}"
                     for hand in HANDS if weights.get(hand, 0.0) > 0)


def standard_level(severity, nudges):
    level = Level(severity, STANDARD_STYLE, STANDARD_STEP, nudges)
    ranges = six_max(level)
    heads = heads_up(level, ranges["RFI SB"])
    ranges.update({"Heads up / " + name: weights for name, weights in heads.items()})
    return ranges


def _clashes(ranges, current, texts, milder):
    """Presets equal to one of a milder level, and opens or calls wider than at the next milder level."""
    equal = {name for name in current if any(current[name] == done[name] for done in texts.values())}
    wider = {name for name in current
             if milder and _shrinks_only(name) and combos(ranges[name]) > combos(milder[name]) + EPS}
    return sorted(equal | wider)


def standard_rake_levels():
    """Preset texts per rake name. Milder levels come first, and each harsher one is nudged until every
    preset differs from all milder levels and no open or call is wider than at the next milder one."""
    texts, milder = {}, None
    for rake, severity in sorted(RAKES, key=lambda rake: rake[1]):
        nudges = {}
        for _ in range(MAX_NUDGES):
            ranges = standard_level(severity, nudges)
            current = {name: enumerated_text(weights) for name, weights in ranges.items()}
            clashes = _clashes(ranges, current, texts, milder)
            if not clashes:
                break
            for name in clashes:
                nudges[name] = nudges.get(name, 0) + 1
        else:
            raise ValueError(f"{rake}: presets equal to a milder rake or wider than it: {clashes}")
        texts[rake], milder = current, ranges
    if texts["No rake"]["RFI UTG"] != ANCHOR_UTG:
        raise ValueError("the UTG open without rake moved away from its fixed value")
    return texts


def standard_document():
    texts = standard_rake_levels()
    document = {}
    for player in ("oop", "ip"):
        six, heads = preset_names(player)
        entries = [{"name": f"{rake} / {name}", "value": texts[rake][name]}
                   for rake, _ in RAKES for name in six]
        entries += [{"name": f"Heads up / {rake} / {name}", "value": texts[rake]["Heads up / " + name]}
                    for rake, _ in RAKES for name in heads]
        document[player] = {"standard": entries}
    return document


# ---------------------------------------------------------------------------------------------------
# Population tree: opponent types. Weights step by 0.25 and texts use range forms.

POPULATION_STEP = 0.25
POPULATION_BLUFF_CAP = 1.0

# Passive players limp and call a lot, raise first in with strong hands only and rarely re-raise.
# Percentages of the deck: raise first in and limp for UTG/HJ/CO, SB and BU; 3-bets (value only);
# BB calls of a raise; cold calls of a 3-bet. Shares: of the limps that call a raise, of an open that
# calls a 3-bet, of the 3-bets that call a 4-bet. Trapped premiums limp, then re-raise.
PASSIVE = (
    ("Passive tight (VPIP 18–25)", {"rfi": 8, "limp": 9, "sb_rfi": 7, "sb_limp": 15, "bu_rfi": 11,
                                    "bu_limp": 11, "threebet": 2.5, "call_raise": 16, "cold_call_3b": 3,
                                    "limp_call": 0.5, "call_3b": 0.55, "call_4b": 0.6, "traps": "AA KK"}),
    ("Passive neutral (VPIP 25–35)", {"rfi": 8, "limp": 15, "sb_rfi": 7, "sb_limp": 23, "bu_rfi": 12,
                                      "bu_limp": 19, "threebet": 3, "call_raise": 24, "cold_call_3b": 4.5,
                                      "limp_call": 0.6, "call_3b": 0.6, "call_4b": 0.65, "traps": "AA KK"}),
    ("Passive loose (VPIP 35–45)", {"rfi": 9, "limp": 24, "sb_rfi": 8, "sb_limp": 32, "bu_rfi": 13,
                                    "bu_limp": 28, "threebet": 3.5, "call_raise": 33, "cold_call_3b": 6,
                                    "limp_call": 0.7, "call_3b": 0.65, "call_4b": 0.7,
                                    "traps": "AA KK QQ AKs"}),
    ("Extreme loose (VPIP 45–65)", {"rfi": 10, "limp": 38, "sb_rfi": 9, "sb_limp": 48, "bu_rfi": 15,
                                    "bu_limp": 45, "threebet": 4, "call_raise": 48, "cold_call_3b": 9,
                                    "limp_call": 0.8, "call_3b": 0.7, "call_4b": 0.75,
                                    "traps": "AA KK QQ AKs"}),
)
PASSIVE_TRAP = 0.25
PASSIVE_FOURBET = 0.08

# Aggressive and tight types raise or fold. Percentages of the deck: opens of UTG/HJ/CO, SB and BU,
# 3-bets from UTG/HJ/CO, SB, BU and BB, BB calls of a raise, BB raises over limps (nits). Shares:
# value share of raises, 4-bets and calls of a 3-bet per open, calls of a 4-bet per 3-bet.
AGGRESSIVE = {
    "Standard LAG (VPIP 28–40)": {"rfi": 24, "sb_rfi": 50, "bu_rfi": 58, "threebet": 8, "sb_threebet": 14,
                                  "bu_threebet": 13, "bb_threebet": 14, "call_raise": 30, "value_share": 0.5,
                                  "fourbet": 0.12, "call_3b": 0.35, "call_4b": 0.25},
    "Maniac (VPIP 45–70)": {"rfi": 40, "sb_rfi": 70, "bu_rfi": 80, "threebet": 15, "sb_threebet": 24,
                            "bu_threebet": 22, "bb_threebet": 24, "call_raise": 40, "value_share": 0.5,
                            "fourbet": 0.18, "call_3b": 0.45, "call_4b": 0.3},
    "Nit": {"rfi": 9, "sb_rfi": 14, "bu_rfi": 17, "threebet": 2.5, "sb_threebet": 3, "bu_threebet": 3,
            "bb_threebet": 2.5, "call_raise": 12, "value_share": 1.0, "fourbet": 0.04, "call_3b": 0.15,
            "call_4b": 0.45, "iso": 4},
}

# Leaves per position folder; "BU" exists only in position and "SB" only out of position.
PASSIVE_LAYOUT = {
    "oop": (("UTG/HJ/CO", ("Limp", "Limp-call", "Limp-3b", "RFI", "Call 3b", "4b")),
            ("SB", ("Limp", "Limp-3b", "RFI", "3b", "4b", "Call 3b", "Call 4b")),
            ("BB", ("Check back", "Call raise", "3b", "Call 4b"))),
    "ip": (("UTG/HJ/CO", ("Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b")),
           ("BU", ("Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b")),
           ("BB", ("Call raise", "3b", "Call 4b"))),
}
AGGRESSIVE_OPENER = ("RFI", "3b", "Call 3b", "4b", "Call 4b")
AGGRESSIVE_LAYOUT = {
    "oop": (("UTG/HJ/CO", ("RFI", "Call 3b", "4b")), ("SB", ("RFI", "3b", "4b", "Call 3b", "Call 4b")),
            ("BB", ("Call raise", "3b", "Call 4b"))),
    "ip": (("UTG/HJ/CO", AGGRESSIVE_OPENER), ("BU", AGGRESSIVE_OPENER), ("BB", ("Call", "3b"))),
}
NIT_BB_LAYOUT = {"oop": ("Check back", "Call raise", "3b", "Call 4b"), "ip": ("Call raise", "3b", "Call 4b")}

# Tokens that are not hands, kept in these leaves as notes were written: the library must show them
# and the engine must reject them. A nit folds KJo to a raise.
STRAY_TOKENS = {("Looser reg", "Call SB"): "50", ("Tighter reg", "UTG vs CO 3bet", "UTG 4bet"): "AA25"}
NIT_FOLDS_TO_RAISE = "KJo:0"


def _runs(indices):
    runs = []
    for index in indices:
        if runs and index == runs[-1][-1] + 1:
            runs[-1].append(index)
        else:
            runs.append([index])
    return runs


def _range_forms(members):
    forms = []
    for run in _runs([i for i, rank in enumerate(RANKS) if rank * 2 in members]):
        top, low = RANKS[run[0]] * 2, RANKS[run[-1]] * 2
        forms.append(top if len(run) == 1 else low + "+" if run[0] == 0 else f"{top}-{low}")
    for kind in "so":
        for i, high in enumerate(RANKS):
            for run in _runs([j for j in range(i + 1, 13) if high + RANKS[j] + kind in members]):
                top, low = high + RANKS[run[0]] + kind, high + RANKS[run[-1]] + kind
                forms.append(top if len(run) == 1 else low + "+" if run[0] == i + 1 else f"{top}-{low}")
    return forms


def compact_text(weights):
    """Range text in forms such as "QQ+", "66-22", "A5s-A2s", "K9o+", heaviest weight first."""
    tokens = []
    for weight in sorted(set(weights.values()), reverse=True):
        suffix = "" if weight >= 1 else ":" + format_weight(weight)
        tokens += [form + suffix for form in _range_forms({h for h, w in weights.items() if w == weight})]
    return ", ".join(tokens)


def take_population(order, capacity, target, what):
    return take(order, capacity, target, POPULATION_STEP, what)


def passive_seat(p, rfi_pct, limp_pct, what):
    traps = {hand: PASSIVE_TRAP for hand in p["traps"].split()}
    raised = take_population(VALUE_ORDER, FULL, pct(rfi_pct), what + " raises")
    rfi = minus(raised, traps)
    limp = union(take_population(OPEN_ORDER, minus(FULL, raised), pct(limp_pct), what + " limps"), traps)
    limp_call = take_population(OPEN_ORDER, minus(limp, traps), combos(limp) * p["limp_call"],
                                what + " limp-call")
    fourbets = take_population(VALUE_ORDER, rfi, combos(rfi) * PASSIVE_FOURBET, what + " 4b")
    calls_3bet = take_population(OPEN_ORDER, minus(rfi, fourbets), combos(rfi) * p["call_3b"],
                                 what + " call 3b")
    threebets = take_population(VALUE_ORDER, FULL, pct(p["threebet"]), what + " 3b")
    calls_4bet = call_of_4bet(threebets, combos(threebets) * p["call_4b"], POPULATION_STEP, what + " call 4b")
    return {"Limp": limp, "Limp-call": limp_call, "Limp-3b": traps, "RFI": rfi, "3b": threebets,
            "Call 3b": calls_3bet, "4b": fourbets, "Call 4b": calls_4bet}


def passive_big_blind(p, what):
    threebets = take_population(VALUE_ORDER, FULL, pct(p["threebet"]), what + " 3b")
    calls = take_population(CALL_ORDER, minus(FULL, threebets), pct(p["call_raise"]), what + " call")
    calls_4bet = call_of_4bet(threebets, combos(threebets) * p["call_4b"], POPULATION_STEP, what + " call 4b")
    return {"Check back": minus(FULL, threebets), "Call raise": calls, "3b": threebets, "Call 4b": calls_4bet}


def aggressive_raises(p, threebet_pct, call_pct, what):
    threebets = pct(threebet_pct)
    value = threebets * p["value_share"]
    return raise_or_call(FULL, value, threebets - value, pct(call_pct), BLUFF_ORDER, POPULATION_STEP,
                         POPULATION_BLUFF_CAP, what)


def aggressive_seat(p, rfi_pct, threebet_pct, what):
    rfi = take_population(OPEN_ORDER, FULL, pct(rfi_pct), what + " RFI")
    fourbets = combos(rfi) * p["fourbet"]
    fourbet, calls_3bet = raise_or_call(rfi, fourbets * p["value_share"], fourbets * (1.0 - p["value_share"]),
                                        combos(rfi) * p["call_3b"], BLUFF_ORDER, POPULATION_STEP,
                                        POPULATION_BLUFF_CAP, what + " 4b")
    threebets, _ = aggressive_raises(p, threebet_pct, 0.0, what + " 3b")
    calls_4bet = call_of_4bet(threebets, combos(threebets) * p["call_4b"], POPULATION_STEP, what + " call 4b")
    return {"RFI": rfi, "3b": threebets, "Call 3b": calls_3bet, "4b": fourbet, "Call 4b": calls_4bet}


def aggressive_big_blind(p, what):
    threebets, calls = aggressive_raises(p, p["bb_threebet"], p["call_raise"], what)
    calls_4bet = call_of_4bet(threebets, combos(threebets) * p["call_4b"], POPULATION_STEP, what + " call 4b")
    leaves = {"Call raise": calls, "Call": calls, "3b": threebets, "Call 4b": calls_4bet}
    if "iso" in p:
        leaves["Check back"] = minus(FULL, take_population(VALUE_ORDER, FULL, pct(p["iso"]), what + " iso"))
    return leaves


def leaf(name, value):
    if not value.strip():
        raise ValueError(f"blank population leaf {name}")
    return {"name": name, "value": value}


def folder(name, children):
    return {"type": "folder", "name": name, "children": children}


def position_folders(layout, seats):
    return [folder(position, [leaf(name, compact_text(seats[position][name])) for name in names])
            for position, names in layout]


def passive_profile(name, p, player):
    seats = {"UTG/HJ/CO": passive_seat(p, p["rfi"], p["limp"], name + " UTG/HJ/CO"),
             "SB": passive_seat(p, p["sb_rfi"], p["sb_limp"], name + " SB"),
             "BU": passive_seat(p, p["bu_rfi"], p["bu_limp"], name + " BU"),
             "BB": passive_big_blind(p, name + " BB")}
    # Aces and kings 4-bet even from a passive player; the rest of the strong hands just call.
    cold_calls = take_population(VALUE_ORDER, minus(FULL, {"AA": 1.0, "KK": 1.0}), pct(p["cold_call_3b"]),
                                 name + " 3b cold call")
    return folder(name, [leaf("3b cold call", compact_text(cold_calls))]
                  + position_folders(PASSIVE_LAYOUT[player], seats))


def aggressive_profile(name, player):
    p = AGGRESSIVE[name]
    seats = {"UTG/HJ/CO": aggressive_seat(p, p["rfi"], p["threebet"], name + " UTG/HJ/CO"),
             "SB": aggressive_seat(p, p["sb_rfi"], p["sb_threebet"], name + " SB"),
             "BU": aggressive_seat(p, p["bu_rfi"], p["bu_threebet"], name + " BU"),
             "BB": aggressive_big_blind(p, name + " BB")}
    layout = AGGRESSIVE_LAYOUT[player]
    if "iso" in p:
        layout = layout[:-1] + (("BB", NIT_BB_LAYOUT[player]),)
    children = position_folders(layout, seats)
    if "iso" in p:
        calls = next(node for node in children[-1]["children"] if node["name"] == "Call raise")
        calls["value"] += ", " + NIT_FOLDS_TO_RAISE
    return folder(name, children)


def _route(name):
    """Folders and leaf of a six-max preset name, as the library files it."""
    if name.startswith("RFI "):
        return ["RFI"], name[4:]
    if name.startswith("vs RFI "):
        opener, action = name[7:].split(": ")
        return ["vs RFI", f"vs {opener} RFI"], action
    spot, action = name.split(": ")
    return ["vs 4bet" if "3bet vs" in name and "4bet" in name else "vs 3bet", spot], action


def regular_profile(name, style, player):
    ranges = six_max(Level(0.0, style, POPULATION_STEP, {}))
    tops = {section: folder(section, []) for section in ("RFI", "vs RFI", "vs 3bet", "vs 4bet")}
    for preset in preset_names(player)[0]:
        path, action = _route(preset)
        text = compact_text(ranges[preset])
        stray = STRAY_TOKENS.get((name, action)) or STRAY_TOKENS.get((name, path[-1], action))
        if stray:
            text += ", " + stray
        parent = tops[path[0]]
        if len(path) > 1:
            if not parent["children"] or parent["children"][-1]["name"] != path[1]:
                parent["children"].append(folder(path[1], []))
            parent = parent["children"][-1]
        parent["children"].append(leaf(action, text))
    return folder(name, list(tops.values()))


def population_tree(player):
    return [
        folder("Passive (VPIP 18–65)", [passive_profile(name, p, player) for name, p in PASSIVE]),
        folder("Loose aggressive (VPIP 28–70)", [aggressive_profile("Standard LAG (VPIP 28–40)", player),
                                                 aggressive_profile("Maniac (VPIP 45–70)", player)]),
        folder("Weaker regs", [regular_profile("Tighter reg", TIGHTER_REG, player),
                               regular_profile("Looser reg", LOOSER_REG, player)]),
        folder("Overfolder (10-22 VPIP)", [aggressive_profile("Nit", player)]),
        folder("Other", [leaf("Bomb pot", "100%")]),
    ]


def population_document(generated_at):
    return {"format": "kelvane_ranges_export", "version": 1, "generatedAt": generated_at,
            "oop": {"standard": [], "exploit": population_tree("oop")},
            "ip": {"standard": [], "exploit": population_tree("ip")}}


def write_json(path, document):
    path.write_text(json.dumps(document, indent=2, ensure_ascii=False) + "\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    now = datetime.datetime.now(datetime.timezone.utc).isoformat(timespec="milliseconds")
    now = now.replace("+00:00", "Z")
    parser.add_argument("--generated-at", default=now, help="time stamp of the Population document")
    args = parser.parse_args()
    data = pathlib.Path(__file__).resolve().parent.parent / "qml" / "data"
    data.mkdir(parents=True, exist_ok=True)
    write_json(data / "standard_ranges.json", standard_document())
    write_json(data / "exploit_ranges.json", population_document(args.generated_at))


if __name__ == "__main__":
    main()
