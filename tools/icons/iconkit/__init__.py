"""The drawings of the product's icons and what turns them into SVG files."""
