"""The drawings of the product's icons and their conversion to SVG files."""
