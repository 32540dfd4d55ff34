#!/usr/bin/python3
"""The chart of compare_tools.sh with pycairo: with_cairo.py FAMILY PICTURE"""
import math
import sys

import cairo

WIDTH, HEIGHT, COLUMNS, ROWS = 3840, 2160, 16, 9
cell, radius = WIDTH // COLUMNS, HEIGHT // 2
chart = cairo.ImageSurface(cairo.FORMAT_RGB24, WIDTH, HEIGHT)
draw = cairo.Context(chart)
draw.set_source_rgb(0x55 / 255, 0xAA / 255, 1)
draw.paint()
draw.set_source_rgb(1, 0xAA / 255, 1)
for place in range(0, COLUMNS * ROWS):
    if (place // COLUMNS + place % COLUMNS) % 2 == 0:
        draw.rectangle(place % COLUMNS * cell, place // COLUMNS * cell, cell, cell)
draw.fill()
draw.set_source_rgb(0, 1, 0)
draw.set_line_width(10)
for begin, end in (((0, 0), (WIDTH, HEIGHT)), ((0, HEIGHT), (WIDTH, 0))):
    draw.move_to(*begin)
    draw.line_to(*end)
    draw.stroke()
draw.set_line_width(6)
for x in (radius, WIDTH - radius):
    draw.arc(x, HEIGHT / 2, radius - 3, 0, 2 * math.pi)
    draw.stroke()
draw.set_source_rgb(1, 1, 1)
draw.set_line_width(2)
draw.rectangle(1, 1, WIDTH - 2, HEIGHT - 2)
draw.stroke()
draw.set_source_rgb(0, 0, 0x64 / 255)
draw.select_font_face(sys.argv[1])
draw.set_font_size(74)
for place in range(0, COLUMNS * ROWS):
    draw.move_to(place % COLUMNS * cell + 60, place // COLUMNS * cell + 145)
    draw.show_text(f"{chr(65 + place // COLUMNS)}-{chr(65 + place % COLUMNS)}")
chart.write_to_png(sys.argv[2])
