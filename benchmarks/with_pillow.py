#!/usr/bin/python3
"""The chart of compare_tools.sh with Pillow: with_pillow.py FONT PICTURE"""
import sys

from PIL import Image, ImageDraw, ImageFont

WIDTH, HEIGHT, COLUMNS, ROWS = 3840, 2160, 16, 9
cell, radius = WIDTH // COLUMNS, HEIGHT // 2
chart = Image.new("RGB", (WIDTH, HEIGHT), "#55aaff")
draw = ImageDraw.Draw(chart)
font = ImageFont.truetype(sys.argv[1], 74)
for row in range(ROWS):
    for column in range(COLUMNS):
        x, y = column * cell, row * cell
        if (row + column) % 2 == 0:
            draw.rectangle((x, y, x + cell - 1, y + cell - 1), fill="#ffaaff")
draw.line((0, 0, WIDTH, HEIGHT), fill="#00ff00", width=10)
draw.line((0, HEIGHT, WIDTH, 0), fill="#00ff00", width=10)
for x in (radius, WIDTH - radius):
    draw.ellipse((x - radius, 0, x + radius, HEIGHT - 1), outline="#00ff00", width=6)
draw.rectangle((0, 0, WIDTH - 1, HEIGHT - 1), outline="#ffffff", width=2)
for row in range(ROWS):
    for column in range(COLUMNS):
        label = f"{chr(65 + row)}-{chr(65 + column)}"
        draw.text((column * cell + 60, row * cell + 145), label, fill="#000064", font=font, anchor="ls")
chart.save(sys.argv[2])
