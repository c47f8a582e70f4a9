# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where a player hunting the computer's fleet fires next: around a ship hit and still afloat,
along its line once the line shows; otherwise the next cell of a checkerboard, which every
ship crosses, being two cells long at least. Cells are (row, column), from 1."""


def next_target(fired, hits):
    """`fired`: every cell fired at; `hits`: the cells hit of each ship still afloat."""
    for cells in hits.values():
        rows, cols = {r for r, _ in cells}, {c for _, c in cells}
        around = [(r + dr, c + dc) for r, c in cells
                  for dr, dc in ((0, 1), (0, -1), (1, 0), (-1, 0))
                  if len(cells) == 1 or (len(rows) == 1 and dr == 0)
                  or (len(cols) == 1 and dc == 0)]
        around = [t for t in around if t not in fired and 1 <= min(t) and max(t) <= 9]
        if around:
            return around[0]
    return next((r, c) for r in range(1, 10) for c in range(1, 10)
                if (r + c) % 2 == 0 and (r, c) not in fired)

