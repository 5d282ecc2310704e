function set_property (obj, name, value)
  % obj.(name) = value, as a function for expect_error.
  obj.(name) = value;
end
