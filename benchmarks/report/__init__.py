"""How the scripts of this folder measure and what they print."""
