"""What the flows drive the built program with: songs and documents made on the fly, the program as a process, the
screen read through the accessibility tree and as pixels, keys, and the sound that comes out.
"""
