"""Prints the moves of a program as its interpreter sees them: a JSON array of [whether it feeds, [x, y, z] in inches].

A process of its own, since the interpreter ends the process where it is not content."""

import json
import os
import sys
import tempfile

import gcode


class Canon:
    """What the interpreter calls; whatever is no move is passed over."""

    def __init__(self, parameter_file):
        self.parameter_file = parameter_file
        self.moves = []

    def straight_traverse(self, *place):
        self.moves.append((False, place[:3]))

    def straight_feed(self, *place):
        self.moves.append((True, place[:3]))

    def get_external_angular_units(self):
        return 1.0

    def get_external_length_units(self):
        return 1.0

    def get_axis_mask(self):
        return 7

    def get_block_delete(self):
        return False

    def check_abort(self):
        return False

    def get_tool(self, number):
        return (number,) + (0.0,) * 12 + (0,)

    def next_line(self, state):
        self.state = state

    def pass_over(self, *_):
        pass

    set_g5x_offset = set_g92_offset = set_xy_rotation = set_plane = set_feed_rate = set_traverse_rate = pass_over
    set_feed_mode = set_spindle_rate = tool_offset = change_tool = change_tool_number = comment = message = pass_over
    dwell = user_defined_function = pass_over


def main():
    with tempfile.TemporaryDirectory(prefix="brindlex-interpreter-") as folder:
        parameters = os.path.join(folder, "parameters.var")
        with open(parameters, "w", encoding="ascii"):
            pass
        canon = Canon(parameters)
        result, line = gcode.parse(sys.argv[1], canon, "", "")
        if result > gcode.MIN_ERROR:
            sys.exit(f"line {line}: {gcode.strerror(result)}")
        print(json.dumps(canon.moves))


main()
