namespace barvon {}
