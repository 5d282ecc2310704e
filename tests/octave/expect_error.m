function expect_error (fn, id)
  % Runs fn, which must fail with the identifier id.
  try
    fn ();
  catch err
    assert (strcmp (err.identifier, id), 'expected %s, got %s: %s', id, err.identifier, err.message);
    return;
  end
  error ('test:noError', 'expected an error %s', id);
end
