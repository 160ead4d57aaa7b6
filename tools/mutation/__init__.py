"""Mutation testing: finds, weaves in, builds and runs deliberate defects."""
