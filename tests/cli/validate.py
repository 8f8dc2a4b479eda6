"""Checks chart documents against a JSON Schema: validate.py SCHEMA FILE..., exit status 77 without a validator."""
import json
import sys

try:
    import jsonschema
except ImportError:
    sys.exit(77)


def load(name):
    with open(name, encoding="utf-8") as file:
        return json.load(file)


schema = load(sys.argv[1])
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
failed = False
for name in sys.argv[2:]:
    for error in validator.iter_errors(load(name)):
        failed = True
        print(f"{name}: {'/'.join(map(str, error.absolute_path))}: {error.message}")
sys.exit(1 if failed else 0)
