#!/usr/bin/python3
"""batch_pipe_test.py VELMARCTL: talks with "velmarctl eval --batch" line by line, each time waiting for the answer."""

import json
import os
import select
import subprocess
import sys

DEADLINE = 20  # seconds for one answer, of which it needs a thousandth


def main(program):
    with subprocess.Popen([program, "eval", "--batch"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as velmarctl:
        answers = b""

        def ask(text):
            nonlocal answers
            os.write(velmarctl.stdin.fileno(), text)
            while b"\n" not in answers:
                ready, _, _ = select.select([velmarctl.stdout], [], [], DEADLINE)
                if not ready:
                    velmarctl.kill()
                    sys.exit(f"no answer to {text}")
                answers += os.read(velmarctl.stdout.fileno(), 65536)
            answer, _, answers = answers.partition(b"\n")
            return json.loads(answer)

        def line(count):
            return json.dumps({"expression": "COUNT > 1", "variables": {"COUNT": str(count)}}).encode() + b"\n"

        for count in range(4):
            assert ask(line(count)) == {"value": count > 1}
        # An incomplete line must not delay the answer to the previous line.
        assert ask(line(5) + line(1)[:9]) == {"value": True}
        assert ask(line(1)[9:]) == {"value": False}
        assert ask(b"\n").keys() == {"error"}
        velmarctl.stdin.close()
        assert velmarctl.stdout.read() == b"" and velmarctl.wait(DEADLINE) == 0


if __name__ == "__main__":
    main(sys.argv[1])
