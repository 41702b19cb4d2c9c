"""Prints which of the texts in a list, a JSON file, are no JSON as a schema says: schema.py SCHEMA LIST"""
import json
import sys

import jsonschema

schema, texts = (json.load(open(name, encoding='utf-8')) for name in sys.argv[1:])
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
print(json.dumps([place for place, text in enumerate(texts) if not validator.is_valid(json.loads(text))]))
