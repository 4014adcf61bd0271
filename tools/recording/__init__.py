"""Makes recordings of invented places; see docs/recordings.md."""
