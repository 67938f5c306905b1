"""The drawings of Kalco's pictures: head, hair, beards, boots, swatches and icon."""
