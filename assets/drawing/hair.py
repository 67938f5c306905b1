"""The 32 hair styles in the order of their values. Families share a letter."""

from . import hair_long as long
from . import hair_short as short

STYLES = {
    "A1": short.bald,
    "A2": short.buzz,
    "A3": short.receding,
    "B1": short.crew_cut,
    "B2": short.side_part,
    "B3": short.curtains,
    "B4": short.slick_back,
    "B5": short.quiff,
    "B6": short.caesar,
    "C1": long.curly,
    "C2": long.afro,
    "D1": short.spikes,
    "D2": short.tousled,
    "E1": short.mohawk,
    "E2": short.undercut,
    "F1": long.long_straight,
    "F2": long.long_wavy,
    "F3": long.headband_long,
    "G1": long.mullet,
    "H1": short.bowl,
    "I1": long.ponytail,
    "I2": long.bun,
    "I3": long.braid,
    "J1": long.dreads,
    "K1": long.cornrows,
    "L1": long.flat_top,
    "L2": long.twists,
    "L3": long.headband_afro,
    "M1": short.widows_peak,
    "N1": short.fringe,
    "O1": short.comb_over,
    "P1": short.tuft,
}
