// Stands in until the first source lands.
